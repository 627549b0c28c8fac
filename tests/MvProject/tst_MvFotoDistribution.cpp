// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"
#include "MvProjectFixture.h"

using FrameId = MvCalendarDocument::FrameId;

class tst_MvFotoDistribution : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void months_data();
    void months();
    void coverAndIndex();
    void facesHaveRoom();
    void facingPages();
    void families_data();
    void families();
};

static MvFotoPoolItem photo(const QString &name, const QString &date, const QSize &size = {3000, 2000})
{
    return {
        u"/fotos/"_qs + name, size, QDateTime(QDate::fromString(date, Qt::ISODate), QTime(12, 0), Qt::UTC), {0.3, 0.4}};
}

/// The names of the photos in the first frame of each page, "-" for none.
static QString names(const MvCalendarDocument &document)
{
    QStringList names;
    int page = -1;
    for (const FrameId &frame : document.frames()) {
        if (frame.page == std::exchange(page, frame.page))
            continue;
        const QString path = document.foto(frame).path();
        names.append(path.isEmpty() ? u"-"_qs : path.section(u'/', -1));
    }
    return names.join(u' ');
}

void tst_MvFotoDistribution::months_data()
{
    const MvRows<QList<MvFotoPoolItem>, QString> row; // photos; placed: January to April 2027
    row("months get their own", {photo(u"mar"_qs, u"2026-03-05"_qs), photo(u"jan"_qs, u"2024-01-31"_qs)},
        u"jan - mar -"_qs);
    row("the shown year before another",
        {photo(u"old"_qs, u"2026-02-05"_qs), photo(u"new"_qs, u"2027-02-05"_qs, {900, 1600})}, u"old new - -"_qs);
    row("of several the one that fits",
        {photo(u"upright"_qs, u"2026-02-05"_qs, {2000, 3000}), photo(u"wide"_qs, u"2026-02-06"_qs)},
        u"upright wide - -"_qs);
    row("others by season",
        {photo(u"dec"_qs, u"2026-12-20"_qs), photo(u"may"_qs, u"2026-05-01"_qs), photo(u"apr"_qs, u"2026-04-20"_qs),
         photo(u"jul"_qs, u"2026-07-01"_qs)},
        u"dec may jul apr"_qs);
    row("without a time in their order",
        {photo(u"a"_qs, {}), photo(u"b"_qs, {}), photo(u"c"_qs, {}), photo(u"d"_qs, {})}, u"a b c d"_qs);
    row("more than frames",
        {photo(u"a"_qs, u"2026-01-01"_qs), photo(u"b"_qs, u"2026-02-01"_qs), photo(u"c"_qs, u"2026-03-01"_qs),
         photo(u"d"_qs, u"2026-04-01"_qs), photo(u"e"_qs, u"2026-08-01"_qs)},
        u"a b c d"_qs);
    row("nothing known of it", {photo(u"a"_qs, u"2026-01-01"_qs, {})}, u"- - - -"_qs);
}

void tst_MvFotoDistribution::months()
{
    const auto [photos, placed] = MvRows<QList<MvFotoPoolItem>, QString>::current();
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_qs, 4);
    MvFotoPool pool;
    pool.add(photos);
    document.setFotoPool(pool);
    const MvFotoDistribution::Result result = MvFotoDistribution::distribute(document);
    QCOMPARE(names(result.document), placed);
    QCOMPARE(result.placed + result.unused.size(), photos.size());
    QCOMPARE(result.placed + result.emptyFrames, 4);
    for (const FrameId &frame : result.document.frames())
        QCOMPARE(result.document.foto(frame).focus(),
                 result.document.foto(frame).isEmpty() ? QPointF(0.5, 0.5) : QPointF(0.3, 0.4));
}

void tst_MvFotoDistribution::coverAndIndex()
{
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_qs, 2);
    const auto page = [&document](MvPageKind kind, int frames, const QSizeF &size) {
        MvCalendarPage made(document.appearance(), document.pages()[0].contentConfig());
        made.setKind(kind);
        made.setElements(QList<MvPageElement>(frames, MvPageElement({QPointF(100, 100), size}, MvFotoElement())));
        return made;
    };
    document.insertPage(0, page(MvPageKind::Cover, 1, {400, 600}));
    document.insertPage(9, page(MvPageKind::Back, 12, {200, 100}));
    MvFotoPool pool;
    pool.add({photo(u"jan"_qs, u"2026-01-05"_qs), photo(u"upright"_qs, u"2026-02-05"_qs, {2000, 3000}),
              photo(u"feb"_qs, u"2026-02-06"_qs)});
    document.setFotoPool(pool);
    const MvCalendarDocument filled = MvFotoDistribution::distribute(document).document;
    QCOMPARE(names(filled), u"upright jan feb jan"_qs);
    QCOMPARE(filled.foto({3, 1}).path(), u"/fotos/feb"_qs);
    QVERIFY(filled.foto({3, 2}).isEmpty());

    for (int number = 0; number < 12; ++number) // enough for an index of its own
        pool.add(photo(u"rest%1"_qs.arg(number), {}));
    document.setFotoPool(pool);
    const MvFotoDistribution::Result rich = MvFotoDistribution::distribute(document);
    QCOMPARE(rich.emptyFrames, 0);
    QCOMPARE(rich.document.fotoUses().size(), 15);
}

/// A photo whose shape suits the frame a little less goes before one that would lose a part of its face there.
void tst_MvFotoDistribution::facesHaveRoom()
{
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_qs, 1);
    MvCalendarPage page = document.pages()[0];
    page.setElements({MvPageElement({100, 100, 600, 300}, MvFotoElement())});
    document.setPage(0, page);
    for (const bool isKnown : {false, true}) {
        MvFotoPoolItem face = photo(u"face"_qs, u"2027-01-05"_qs);
        face.interest = isKnown ? MvFotoInterest({{{0.3, 0.0, 0.4, 1.0}, 1.0}}) : MvFotoInterest();
        MvFotoPool pool;
        pool.add({face, photo(u"view"_qs, u"2027-01-06"_qs, {2600, 2000})});
        document.setFotoPool(pool);
        QCOMPARE(names(MvFotoDistribution::distribute(document).document), isKnown ? u"view"_qs : u"face"_qs);
    }
}

/// The photo of a month hangs above it; the cover gets another one.
void tst_MvFotoDistribution::facingPages()
{
    MvNewCalendar wanted;
    wanted.range = {QDate(2027, 1, 1), QDate(2027, 3, 31)};
    wanted.hasFacingPages = true;
    wanted.hasBack = false;
    MvCalendarDocument document = wanted.make();
    QCOMPARE(document.pages().size(), 7);
    MvFotoPool pool;
    pool.add(
        {photo(u"feb"_qs, u"2026-02-05"_qs), photo(u"mar"_qs, u"2026-03-05"_qs), photo(u"jan"_qs, u"2026-01-05"_qs)});
    document.setFotoPool(pool);
    const QStringList months{u"jan"_qs, u"feb"_qs, u"mar"_qs};
    for (const MvCalendarTheme &theme : MvThemeRegistry::instance().themes()) {
        const MvCalendarDocument themed = MvThemeApplication::applied(document, theme);
        for (const FrameId &frame : themed.frames())
            QVERIFY(!themed.isMonthPage(frame.page));
        const MvCalendarDocument filled = MvFotoDistribution::distribute(themed).document;
        for (int month = 0; month < 3; ++month)
            QCOMPARE(filled.foto({1 + 2 * month, 0}).path(), u"/fotos/"_qs + months[month]);
    }
}

void tst_MvFotoDistribution::families_data()
{
    const MvRows<int> row; // seed
    for (int seed = 1; seed <= 36; ++seed)
        row(QString::number(seed), seed);
}

/// Any photos in any theme: each at most once, nothing placed moves, months first, and a second time changes nothing.
void tst_MvFotoDistribution::families()
{
    const auto [seed] = MvRows<int>::current();
    QRandomGenerator random{quint32(seed)};
    const auto below = [&random](qsizetype bound) { return int(random.bounded(int(bound))); };
    const QStringList papers = MvPageFormat::names();
    const auto themes = MvThemeRegistry::instance().themes();
    MvNewCalendar wanted;
    wanted.range = {QDate(2027, 1, 1), QDate(2027, 12, 31)};
    wanted.themeId = themes[below(themes.size())].id();
    wanted.format = MvPageFormat::fromName(papers[below(papers.size())]);
    wanted.format.setOrientation(MvPageFormat::Orientation(below(2)));
    MvCalendarDocument document = wanted.make();
    const QList<QSize> sizes{{4000, 3000}, {3000, 4000}, {2000, 2000}, {9000, 2000}, {640, 480}, {1, 1}};
    MvFotoPool pool;
    for (int number = below(60); number >= 0; --number)
        pool.add(photo(QString::number(number),
                       below(4) ? QDate(2024, 1, 1).addDays(below(1400)).toString(Qt::ISODate) : QString(),
                       sizes[below(sizes.size())]));
    document.setFotoPool(pool);
    const QList<FrameId> frames = document.frames();
    const FrameId placed = frames.value(below(frames.size()));
    document.setFoto(placed, MvFotoElement(u"/fotos/0"_qs)); // also in the pool
    const MvFotoElement byHand = document.foto(placed);

    const MvFotoDistribution::Result result = MvFotoDistribution::distribute(document);
    QCOMPARE(result.document.foto(placed), byHand);
    QHash<int, int> framesOf;
    for (const FrameId &frame : frames)
        ++framesOf[frame.page];
    QHash<QString, int> uses;
    QHash<int, int> emptyOf;
    int open = 0;
    for (const FrameId &frame : frames) {
        const QString path = result.document.foto(frame).path();
        const bool isIndex =
            !document.isMonthPage(frame.page) && framesOf[frame.page] >= MvFotoDistribution::framesOfIndex;
        if (!path.isEmpty() && !isIndex)
            QVERIFY2(++uses[path] == 1, qPrintable(path));
        emptyOf[frame.page] += path.isEmpty() ? 1 : 0;
        open += path.isEmpty() && !isIndex ? 1 : 0;
    }
    QVERIFY2(open == 0 || result.unused.isEmpty(), "no photo waits while there is room");
    bool isOtherFilled = false;
    bool isMonthWithout = false;
    for (auto it = framesOf.cbegin(); it != framesOf.cend(); ++it) {
        if (!document.isMonthPage(it.key()) && *it >= MvFotoDistribution::framesOfIndex)
            continue;
        const bool isFilled = emptyOf[it.key()] < *it && it.key() != placed.page;
        isOtherFilled |= isFilled && !document.isMonthPage(it.key());
        isMonthWithout |= !isFilled && document.isMonthPage(it.key()) && it.key() != placed.page;
    }
    QVERIFY2(!(isOtherFilled && isMonthWithout && uses.size() < 12), "months first");
    const MvFotoDistribution::Result again = MvFotoDistribution::distribute(result.document);
    QVERIFY(again.document == result.document);
    QCOMPARE(again.placed, 0);
}

MV_TEST_MAIN(tst_MvFotoDistribution)
#include "tst_MvFotoDistribution.moc"
