// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvContrast.h"
#include "MvFolderTest.h"
#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProjectFixture.h"
#include "MvRows.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;
using Item = MvPaintRecording::Item;
using FrameId = MvCalendarDocument::FrameId;

/// Pages of elements: templates, the order of pages, and what is painted of texts and calendaria.
class tst_MvPageElements : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void simplePageIsElements();
    void templatesThereAndBack();
    void ownWordsAndLooksStay();
    void otherPaper();
    void fromAndToSimple();
    void orderOfPages();
    void rangeKeepsEverything();
    void swaps();
    void texts_data();
    void texts();
    void textsStayInTheirFrames();
    void severalCalendaria();
    void veils_data() { MvRows<QString, int, int, bool>().read(u"veils"_s); }
    void veils();

private:
    static MvPageElement text(const QString &words, const QRectF &rect = {200, 200, 800, 200});
    static QStringList fotosOf(const MvCalendarPage &page);
    static MvCalendarDocument templated(int months, const MvPageTemplate &pageTemplate);
    static MvPaintRecording recorded(const MvCalendarDocument &calendar, int page, MvPageFindings *findings = nullptr);
};

MvPageElement tst_MvPageElements::text(const QString &words, const QRectF &rect)
{
    return {rect, MvTextElement(words)};
}

/// File names, "-" for empty frames.
QStringList tst_MvPageElements::fotosOf(const MvCalendarPage &page)
{
    QStringList names;
    for (const MvPageElement &element : page.elements()) {
        if (element.foto())
            names.append(element.foto()->isEmpty() ? u"-"_s : element.foto()->path().mid(1));
    }
    return names;
}

MvCalendarDocument tst_MvPageElements::templated(int months, const MvPageTemplate &pageTemplate)
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, months);
    for (int number = 0; number < months; ++number) {
        MvCalendarPage page = calendar.pages()[number];
        page.setTemplate(pageTemplate, calendar.format());
        calendar.setPage(number, page);
    }
    return calendar;
}

MvPaintRecording tst_MvPageElements::recorded(const MvCalendarDocument &calendar, int page, MvPageFindings *findings)
{
    return calendar.pages()[page].record(calendar.format(), calendar.context(), {},
                                         MvRenderingRule(MvRenderingRule::Print), 1.0, {}, findings);
}

void tst_MvPageElements::simplePageIsElements()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
    const MvPageFormat format = calendar.format();
    MvCalendarPage page = calendar.pages()[0];
    QVERIFY(page.isSimple() && page.elementsOn(format)[0].rect().isEmpty());
    QCOMPARE(page.frameSize(0, format), MvFotoFrame().place(format).size());
    QVERIFY(page.setFoto(0, MvFotoElement(u"/a.jpg"_s)));
    QCOMPARE(page.fotoFrame().path(), u"/a.jpg"_s);
    QVERIFY(!page.setFoto(1, MvFotoElement(u"/b.jpg"_s))); // the calendarium
    const int added = page.addElement(text(u"Hallo"_s, {500, 100, 400, 100}));
    QCOMPARE(added, 2);
    // texts are before photos
    QCOMPARE(page.elementAt({600, 150}, format), added);
    QCOMPARE(page.elementAt({600, 300}, format), 0);
    QCOMPARE(page.elementAt(page.calendariumRect(format).center(), format), 1);
    QCOMPARE(page.elementAt({5, 1475}, format), -1);

    // placed by hand it is the same page
    MvCalendarPage freed = page;
    freed.freeElements(format);
    QVERIFY(!freed.isSimple() && freed.elementsOn(format) == page.elementsOn(format));
    calendar.setPage(0, page);
    const QList<Item> before = recorded(calendar, 0).items();
    calendar.setPage(0, freed);
    QCOMPARE(recorded(calendar, 0).items().size(), before.size());
}

void tst_MvPageElements::templatesThereAndBack()
{
    MvCalendarDocument calendar = templated(1, pageTemplate(u"THREE"_s, 3));
    MvCalendarPage page = calendar.pages()[0];
    QCOMPARE(fotosOf(page), QStringList({u"-"_s, u"-"_s, u"-"_s}));
    for (int foto = 0; foto < 3; ++foto)
        QVERIFY(page.setFoto(1 + foto, MvFotoElement(u"/%1"_s.arg(foto + 1))));
    const QList<MvPageElement> before = page.elements();
    page.setTemplate(pageTemplate(u"ONE"_s, 1), calendar.format());
    QCOMPARE(fotosOf(page), QStringList{u"1"_s});
    QCOMPARE(page.spareElements().size(), 2);
    page.setTemplate(pageTemplate(u"TWO"_s, 2), calendar.format());
    QCOMPARE(fotosOf(page), QStringList({u"1"_s, u"2"_s}));
    page.setTemplate(MvPageTemplate::unknown(u"FEHLT"_s), calendar.format()); // moves nothing
    QCOMPARE(page.templateId(), u"FEHLT"_s);
    QCOMPARE(fotosOf(page), QStringList({u"1"_s, u"2"_s}));
    page.setTemplate(pageTemplate(u"THREE"_s, 3), calendar.format());
    QVERIFY(page.elements() == before && page.spareElements().isEmpty());

    const MvCalendarPage empty = page.withoutOwnContent(calendar.format());
    QVERIFY(page.hasOwnContent(calendar.format()) && !empty.hasOwnContent(calendar.format()));
    QVERIFY(empty.elements() == templated(1, pageTemplate(u"THREE"_s, 3)).pages()[0].elements());
}

void tst_MvPageElements::ownWordsAndLooksStay()
{
    const MvPageFormat format = document(u"DAY_LIST"_s, 1).format();
    MvCalendarPage page = templated(1, pageTemplate(u"PLAIN"_s, 1)).pages()[0];
    MvTextElement title = *page.elements()[0].text();
    title.setText(u"Unser Jahr"_s);
    title.setItalic(true);
    page.setElement(0, {page.elements()[0].rect(), title, u"title"_s});
    page.setFoto(1, MvFotoElement(u"/a.jpg"_s));
    page.addElement(text(u"von Hand"_s, {1, 2, 300, 40}));

    page.setTemplate(pageTemplate(u"FRAMED"_s, 1, 25.0), format);
    QCOMPARE(page.elements()[0].text()->text(), u"Unser Jahr"_s);
    QVERIFY(page.elements()[0].text()->isItalic());
    QCOMPARE(page.elements()[1].foto()->border().width, 25.0); // as the template has it
    QCOMPARE(page.elements().constLast().rect(), QRectF(1, 2, 300, 40));
    MvFotoElement own = *page.elements()[1].foto();
    own.setBorder({7.0, Qt::red});
    page.setFoto(1, own);
    page.setTemplate(pageTemplate(u"PLAIN"_s, 1), format);
    QCOMPARE(page.elements()[1].foto()->border().width, 7.0); // as somebody wanted it
    // a template without a place for a title keeps it for one that has
    const auto onlyFoto = [](const MvPageFormat &paper) {
        return QList<MvTemplateSlot>{{{paper.trimRect(), MvFotoElement(), u"photo 1"_s}}};
    };
    page.setTemplate({u"BARE"_s, MvPageKind::Month, u"Kahl"_s, {}, onlyFoto}, format);
    QCOMPARE(page.elements().size(), 2);
    page.setTemplate(pageTemplate(u"PLAIN"_s, 1), format);
    QCOMPARE(page.elements()[0].text()->text(), u"Unser Jahr"_s);
}

void tst_MvPageElements::otherPaper()
{
    MvCalendarDocument calendar = templated(1, pageTemplate(u"TWO"_s, 2));
    MvCalendarPage page = calendar.pages()[0];
    page.setFoto(1, MvFotoElement(u"/a.jpg"_s));
    page.addElement(text(u"Mitte"_s, {1000, 700, 100, 80}));
    page.removeElement(3); // the caption
    calendar.setPage(0, page);
    const MvCalendarDocument before = calendar;
    const MvPageFormat square = MvPageFormat::fromName(u"210x210"_s);
    calendar.setFormat(square);
    const QList<MvPageElement> elements = calendar.pages()[0].elements();
    QCOMPARE(elements.size(), page.elements().size()); // what was taken away stays away
    const MvPageTemplate two = pageTemplate(u"TWO"_s, 2);
    QCOMPARE(elements[1].rect(), two.slotsFor(square)[1].element.rect());
    QCOMPARE(elements.constLast().rect().center(), QPointF(1050.0, 740.0 * 2100.0 / 1480.0));
    calendar.setFormat(before.format());
    QVERIFY(calendar == before);
}

void tst_MvPageElements::fromAndToSimple()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
    MvCalendarPage page = calendar.pages()[0];
    page.setFotoFrame(MvFotoFrame(u"/1"_s));
    page.setTemplate(pageTemplate(u"TWO"_s, 2), calendar.format());
    QCOMPARE(fotosOf(page), QStringList({u"1"_s, u"-"_s}));
    page.setFoto(2, MvFotoElement(u"/2"_s));
    page.setTemplate({}, calendar.format());
    QVERIFY(page.isSimple() && page.elements().isEmpty());
    QCOMPARE(page.fotoFrame().path(), u"/1"_s);
    page.setTemplate(pageTemplate(u"TWO"_s, 2), calendar.format());
    QCOMPARE(fotosOf(page), QStringList({u"1"_s, u"2"_s}));
}

void tst_MvPageElements::orderOfPages()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 3);
    const auto kinds = [&calendar] {
        QString letters;
        for (const MvCalendarPage &page : calendar.pages())
            letters += u"mcfb"_s.at(int(page.kind()));
        return letters;
    };
    MvCalendarPage page;
    for (const auto &[kind, before, place, order] : {std::tuple(MvPageKind::Cover, 2, 0, "cmmm"),
                                                     {MvPageKind::Back, 0, 4, "cmmmb"},
                                                     {MvPageKind::Free, 0, 1, "cfmmmb"},
                                                     {MvPageKind::Month, -1, 5, "cfmmmfb"}}) {
        page.setKind(kind);
        QCOMPARE(calendar.insertPage(before, page), place);
        QCOMPARE(kinds(), QString::fromLatin1(order));
    }
    QVERIFY(calendar.isValid());
    QCOMPARE(calendar.duplicatePage(3), 4); // February
    QCOMPARE(kinds(), u"cfmmfmfb"_s);
    const QDate january(2027, 1, 1);
    const auto inMonths = [&january](const QList<int> &months) {
        QList<QDate> dates;
        for (const int month : months)
            dates.append(january.addMonths(month - 1));
        return dates;
    };
    QCOMPARE(calendar.pageDates(), inMonths({1, 1, 1, 2, 2, 3, 3, 3}));
    QVERIFY(!calendar.removePage(2) && !calendar.movePage(2, 1) && !calendar.movePage(1, 0) &&
            !calendar.movePage(7, 3));
    QVERIFY(calendar.movePage(1, 6));
    QCOMPARE(kinds(), u"cmmfmffb"_s);
    QVERIFY(calendar.removePage(6) && calendar.removePage(5));

    // the copy follows its month, and what goes before and after stays there
    calendar.setRange({january.addMonths(-1), january.addMonths(3).addDays(-1)});
    QCOMPARE(kinds(), u"cmmmfmb"_s);
    QCOMPARE(calendar.pageDates(), QList<QDate>()
                                       << january.addMonths(-1) << january.addMonths(-1) << inMonths({1, 2, 2, 3, 3}));
    calendar.setRange({january, january.addMonths(1).addDays(-1)});
    QCOMPARE(kinds(), u"cmfb"_s);
    QCOMPARE(calendar.pageDates(), inMonths({1, 1, 2, 1}));
    QVERIFY(calendar.isValid());
}

void tst_MvPageElements::rangeKeepsEverything()
{
    MvCalendarDocument calendar = templated(3, pageTemplate(u"TWO"_s, 2));
    MvCalendarPage march = calendar.pages()[2];
    march.setTemplate(pageTemplate(u"THREE"_s, 3), calendar.format());
    march.setFoto(2, MvFotoElement(u"/maerz"_s));
    march.addElement(text(u"Ostern"_s));
    calendar.setPage(2, march);
    const MvCalendarDocument before = calendar;
    calendar.setRange({{2027, 1, 1}, {2027, 2, 28}});
    QCOMPARE(calendar.sparePages().keys(), QList<QDate>{QDate(2027, 3, 1)});
    calendar.setRange(before.range());
    QVERIFY(calendar == before);
    // a new month has the template of its neighbour and nothing of its photos
    calendar.setRange({{2027, 1, 1}, {2027, 4, 30}});
    QCOMPARE(fotosOf(calendar.pages()[3]), QStringList({u"-"_s, u"-"_s, u"-"_s}));
    QCOMPARE(calendar.pages()[3].templateId(), u"THREE"_s);
    QVERIFY(calendar.replaceFoto(u"/maerz"_s, u"/neu/maerz"_s));
    QCOMPARE(calendar.fotoUses(), (QHash<QString, int>{{u"/neu/maerz"_s, 1}}));
}

void tst_MvPageElements::swaps()
{
    MvCalendarDocument calendar = templated(2, pageTemplate(u"TWO"_s, 2, 10.0));
    calendar.insertPage(0, [] {
        MvCalendarPage cover;
        cover.setKind(MvPageKind::Cover);
        cover.setElements({{{0, 0, 900, 900}, MvFotoElement(u"/cover"_s)}});
        return cover;
    }());
    MvFotoElement zoomed(u"/zoom"_s);
    zoomed.setZoom(3.0);
    zoomed.setCaption(u"Oma"_s);
    QVERIFY(calendar.setFoto({1, 2}, zoomed));
    QVERIFY(calendar.swapFotos({0, 0}, {1, 2}));
    QCOMPARE(calendar.foto({0, 0}).zoom(), 3.0);
    QCOMPARE(calendar.foto({0, 0}).caption(), u"Oma"_s);
    QCOMPARE(calendar.foto({0, 0}).border().width, 0.0); // borders belong to the frames
    QCOMPARE(calendar.foto({1, 2}).path(), u"/cover"_s);
    QVERIFY(calendar.swapFotos({1, 2}, {2, 1})); // with an empty one: moves
    QVERIFY(calendar.foto({1, 2}).isEmpty());
    for (const FrameId &none : {FrameId{0, 1}, FrameId{9, 0}, FrameId{}, FrameId{1, 0}})
        QVERIFY(!calendar.swapFotos({0, 0}, none) && !calendar.setFoto(none, zoomed));
    QCOMPARE(calendar.frames().size(), 5);
}

void tst_MvPageElements::texts_data()
{
    const MvRows<QString, MvPageKind, QStringList> row; // words, kind, printed
    const auto free = MvPageKind::Free;
    row("month and year", u"{month} {year}"_s, free, QStringList{u"März 2027"_s});
    row("years of a cover", u"{year}"_s, MvPageKind::Cover, QStringList{u"2026/27"_s});
    row("names", u"{title} · {author}"_s, free, QStringList{u"Familie 2027 · Jürgen"_s});
    row("captions", u"{caption}\n{photos}"_s, free, QStringList{u"Oma"_s, u"Oma · Am See"_s});
    row("what is no placeholder", u"{Titel} {month"_s, free, QStringList{u"{Titel} {month"_s});
    row("nothing to say", u" \n "_s, free, QStringList());
}

void tst_MvPageElements::texts()
{
    const auto [words, kind, printed] = MvRows<QString, MvPageKind, QStringList>::current();
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
    calendar.setRange({{2026, 8, 1}, {2027, 7, 31}});
    calendar.setAuthor(u"Jürgen"_s);
    MvCalendarPage page = calendar.pages()[7];
    page.setKind(kind);
    MvFotoElement first(u"/nirgends/1.jpg"_s);
    MvFotoElement second(u"/nirgends/2.jpg"_s);
    first.setCaption(u"Oma"_s);
    second.setCaption(u"Am See"_s);
    page.setElements({{{0, 0, 10, 10}, first}, {{0, 20, 10, 10}, second, u"photo 2"_s}, text(words)});
    const int number = calendar.insertPage(0, page);
    QStringList found;
    for (const Item &item : recorded(calendar, number).items(Item::Text))
        found.append(item.text);
    QCOMPARE(found, printed);
}

/// Whatever is written, in whatever frame: it stays inside, or it is told.
void tst_MvPageElements::textsStayInTheirFrames()
{
    const QStringList wordings = {u"Kurz"_s, u"Donaudampfschifffahrtsgesellschaft"_s,
                                  u"Viele Worte, die sich auf mehrere Zeilen verteilen wollen und es dürfen."_s,
                                  QString(300, u'W')};
    for (const QString &words : wordings) {
        for (const QSizeF &size : {QSizeF(1500, 300), QSizeF(300, 300), QSizeF(120, 60), QSizeF(20, 10)}) {
            for (const Qt::Alignment alignment : {Qt::AlignLeft | Qt::AlignTop, Qt::AlignRight | Qt::AlignBottom,
                                                  Qt::AlignHCenter | Qt::AlignVCenter}) {
                MvTextElement written(words);
                written.setPoints(28.0);
                written.setAlignment(alignment);
                const QRectF frame({300, 300}, size);
                MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
                MvCalendarPage page = calendar.pages()[0];
                page.setElements({{frame, written}});
                calendar.setPage(0, page);
                MvPageFindings found;
                QString printed;
                for (const Item &item : recorded(calendar, 0, &found).items(Item::Text)) {
                    QVERIFY2(frame.adjusted(-1, -1, 1, 1).contains(item.bounds), qPrintable(words));
                    QVERIFY(item.font.pixelSize() >= 22); // 6.5 points
                    printed += item.text;
                }
                const bool isWhole = printed.remove(u'-').remove(u' ') == QString(words).remove(u' ');
                QCOMPARE(found.elements.isEmpty(), isWhole);
                if (!isWhole) {
                    QCOMPARE(found.elements[0].element, 0);
                    QCOMPARE(found.elements[0].text, words);
                }
            }
        }
    }
}

void tst_MvPageElements::severalCalendaria()
{
    MvCalendarDocument calendar = document(u"DAY_LIST"_s, 2);
    MvCalendarPage page = calendar.pages()[0];
    const MvCalendariumElement own;
    MvCalendariumElement next(u"MONTH_GRID_COMPACT"_s);
    next.setMonthOffset(1);
    MvCalendariumElement lineless;
    lineless.setMonthLine(false);
    const QRectF left(100, 100, 600, 1300);
    const QRectF right(800, 100, 600, 600);
    page.setElements({{left, own}, {right, next}});
    calendar.setPage(0, page);
    QHash<QDate, QRectF> days;
    const auto listen = [&days](MvCalendariumRenderer &renderer) {
        connect(&renderer, &MvCalendariumRenderer::rectForDateFound,
                [&days](const QDate &date, const QRectF &rect) { days[date] = rect; });
    };
    const auto record = [&] {
        QStringList leftTexts;
        QStringList rightTexts;
        for (const Item &item :
             calendar.pages()[0].record(calendar.format(), calendar.context(), listen).items(Item::Text)) {
            QVERIFY2(left.contains(item.bounds) || right.contains(item.bounds), qPrintable(item.text));
            (left.contains(item.bounds) ? leftTexts : rightTexts).append(item.text.simplified());
        }
        QVERIFY(rightTexts.join(u' ').contains(u"FEBRUAR"_s, Qt::CaseInsensitive));
        QCOMPARE(leftTexts.join(u' ').contains(u"Januar"_s),
                 calendar.pages()[0].elements()[0].calendarium()->hasMonthLine());
    };
    record();
    const auto isIn = [](const QRectF &all, const QRectF &part) { return all.adjusted(-1, -1, 1, 1).contains(part); };
    QVERIFY(isIn(left, days[{2027, 1, 31}]) && isIn(right, days[{2027, 2, 28}]));
    QCOMPARE(calendar.pages()[0].printedMonths(), MvDateRange({2027, 1, 1}, {2027, 2, 28}));
    page.setElement(0, {left, lineless});
    calendar.setPage(0, page);
    record();
    page.setElements({});
    QVERIFY(!page.printedMonths().isValid());
}

/// Contrast by the definition of the web's rules, over again: 4.5 for all but what a letter covers itself.
void tst_MvPageElements::veils()
{
    const auto [colors, dark, light, isSeen] = MvRows<QString, int, int, bool>::current();
    QImage stripes(400, 400, QImage::Format_RGB32);
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 400; ++x)
            stripes.setPixelColor(x, y, x / 40 % 2 == 0 ? QColor(dark, dark, dark) : QColor(light, light, light));
    const QString photo = path(u"%1-%2.png"_s.arg(dark).arg(light));
    QVERIFY(stripes.save(photo));
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
    const bool isWhite = colors.isEmpty();
    calendar.setAppearance(appearance(u"MONTH_GRID_CLASSIC"_s, isWhite ? u"PAPER_WHITE"_s : colors));
    const QColor usual = calendar.appearance().cellColor(
        {MvCalendarCellColorRoleEnum::textcolor, CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogicEnum::even});
    const QColor ink = isWhite ? QColor(Qt::white) : usual;
    MvTextElement words(u"Am See"_s);
    words.setColor(isWhite ? ink : QColor());
    words.setOnFoto(true);
    words.setPoints(40.0);
    MvCalendarPage page = calendar.pages()[0];
    const QRectF frame(200, 200, 1000, 800);
    page.setElements({{{0, 0, 1400, 1400}, MvFotoElement(photo)}, {frame, words}});
    const QList<Item> fills = page.record(calendar.format(), calendar.context()).items(Item::Rect);
    QCOMPARE(fills.size(), isSeen ? 1 : 0);
    if (!isSeen)
        return;
    QVERIFY(frame.contains(fills[0].bounds) && fills[0].bounds.height() < 400.0); // as large as the words
    const double alpha = fills[0].fill.alphaF();
    for (const int tone : {dark, light}) {
        const int veiled = qRound(tone + (qGray(fills[0].fill.rgb()) - tone) * alpha);
        QVERIFY(MvContrast::ratio(ink, QColor(veiled, veiled, veiled)) > 4.4); // greys are rounded
    }
}

MV_TEST_MAIN(tst_MvPageElements)
#include "tst_MvPageElements.moc"
