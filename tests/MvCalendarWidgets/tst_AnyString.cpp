// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvBoxFont.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventTextDelegate.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextOutline.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvPaint/MvTextPainter.h"

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

QString allPlanes()
{
    QString text;
    for (char32_t plane = 0; plane <= 16; ++plane) {
        for (const char32_t c : {0x41, 0x301, 0x600, 0xF382, 0xFE0F, 0xFFFD, 0xFFFE, 0xFFFF})
            text.append(QChar::fromUcs4((plane << 16) + (c & 0xffff))).append(u' ');
    }
    return text;
}

/// Whether the font that the computer has for marks sets one above the other, which then needs more than a line.
bool stacksMarks()
{
    const MvTextOutline outline(MvBoxFont::font(20), u'a' + QString(20, QChar(0x0301)));
    return outline.path().boundingRect().height() > 60;
}

/// The page with the one entry on 5 March 2027.
MvPaintRecording pageWith(MvPageFixture &page, const QString &name)
{
    MvCalendarEventRegistry::instance().setEvents(
        {MvCalendarEvent(name, QDate(2027, 3, 5).startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime())});
    return page.render({0, 0, 2730, 1780});
}

} // namespace

/// Names, headers and titles may hold anything; every layout prints them or says that they have no room.
class tst_AnyString : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvCalendarEventRegistry::instance().setEvents({}); }

    void everyPainter_data();
    void everyPainter();
    void lists();
    void shortens_data();
    void shortens();
};

void tst_AnyString::everyPainter_data()
{
    const MvRows<QString, QString, bool> newRow; // type; name; hasRoom: or nothing to see that could lack it
    const std::tuple<const char *, QString, bool> texts[] = {
        {"50 blanks", QString(50, u' '), true},
        {"breaks, tabs and controls", u"\n\r\t\x01\x7f\u0085\u2028\u2029\0"_s, true},
        {"zero width", u"\u200b\u200d\u2060\ufeff\u00ad\u3164"_s.repeated(20'000), true},
        {"controls within", u"\u0001A\nB\tC\0D\u2028E "_s, true},
        {"lone surrogates", QString(QChar(0xdc00)) + u'A' + QChar(0xd800), true},
        {"all planes", allPlanes().repeated(100), false},
        {"100,000 letters", QString(100'000, u'x'), false},
        {"100,000 letters in words", u"ab cde "_s.repeated(14'286), false},
        {"100,000 letters right to left", QString(100'000, QChar(0x05d0)), false},
        {"right to left and back", u"\u202e\u05d0\u05d1 abc \u2067\u0627\u0644\u2069\u202c"_s, true},
        {"100,000 marks on a letter", u'a' + QString(100'000, QChar(0x0301)), true},
    };
    const QList<QByteArray> higherThanTheirLine = {"CALENDAR_ONE_DAY_PER_ROW, 100,000 marks on a letter",
                                                   "CALENDAR_YEAR, 100,000 marks on a letter"};
    const bool stacks = stacksMarks();
    for (const char *type : {"CALENDAR_ONE_WEEK_PER_ROW", "CALENDAR_TWO_WEEKS", "CALENDAR_ONE_COLUMN_PER_WEEK",
                             "CALENDAR_ONE_ROW", "CALENDAR_ONE_DAY_PER_ROW", "CALENDAR_HOLIDAYS", "CALENDAR_YEAR"}) {
        for (const auto &[text, name, hasRoom] : texts) {
            const QByteArray row = QByteArray(type) + ", " + text;
            const bool isTooHigh = higherThanTheirLine.contains(row) && stacks;
            newRow(row, QString::fromLatin1(type), name, (hasRoom && !isTooHigh));
        }
    }
}

void tst_AnyString::everyPainter()
{
    const auto [type, name, hasRoom] = MvRows<QString, QString, bool>::current();
    QString info = u"calendar_render_days,calendar_render_days_of_week,calendar_render_title,"
                   "calendar_render_year_long,calendar_render_month_long"_s;
    if (type == "CALENDAR_YEAR"_L1)
        info += u",calendar_render_days_of_week_only_in_front"_s; // the form that shows names
    MvCalendariumAppearance appearance = MvPageFixture::appearance(info, MvPageFixture::defaultCells(), type);
    appearance.setColumnHeaders(name);
    MvPageFixture page(appearance, QDate(2027, 3, 1), FEATURE_ENTRIES);
    page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    pageWith(page, u"A"_s);
    const auto days = page.days.size();
    const MvPaintRecording recording = pageWith(page, name);

    QCOMPARE(page.days.size(), days);
    for (const MvPaintRecording::Item &item : recording.items(MvPaintRecording::Item::Text)) {
        QVERIFY(item.text.size() <= 2000);
        for (const QChar c : item.text)
            QVERIFY2(c.category() != QChar::Other_Control && !c.isNull(), qPrintable(item.text));
    }
    const bool showsNames = page.renderer().abilities().hasAnyOf(ABILITY_DISPLAY_HOLIDAYS);
    QCOMPARE(page.renderer().unfittingTexts().isEmpty(), hasRoom || !showsNames);
    if (!hasRoom) { // what is reported does not stand there whole
        for (const MvPaintRecording::Item &item : recording.items(MvPaintRecording::Item::Text))
            QVERIFY(item.text != MvPrintableText::onOneLine(name));
    }
}

void tst_AnyString::lists()
{
    const MvCalendarEventTextDelegate delegate;
    const auto shown = [&delegate](const QString &name) { return delegate.displayText(name, QLocale()); };
    QCOMPARE(shown(u" A\n\u0001B "_s), u"A B"_s);
    QCOMPARE(shown(QString(100'000, u'x')).size(), 500);
    QVERIFY(shown(u'a' + QString(100'000, QChar(0x0301))).size() < 100); // to lay them all out takes long
}

void tst_AnyString::shortens_data()
{
    const MvRows<QString, QString> row; // text, shown
    // ten letters of half an em of 20 pixels
    row("fits", u"abcdefghij"_s, u"abcdefghij"_s);
    row("one too many", u"abcdefghijk"_s, u"abcdefghi…"_s);
    row("no blank before the ellipsis", u"abcdefgh  ijkl"_s, u"abcdefgh…"_s);
    row("100,000", QString(100'000, u'a'), u"aaaaaaaaa…"_s);
    row("accent stays with its letter", u"abcdefghe\u0301\u0301ijkl"_s, u"abcdefghe\u0301\u0301…"_s);
    // of a plane without fonts: an emoji would be as wide as its font has it
    row("pair stays whole", u"abcdefgh\U000F0000ijkl"_s, u"abcdefgh\U000F0000…"_s);
    row("family stays together", u"abcdef\U0001F468\u200d\U0001F469\u200d\U0001F467ijkl"_s,
        u"abcdef\U0001F468\u200d\U0001F469\u200d\U0001F467…"_s);
}

void tst_AnyString::shortens()
{
    const auto [text, shown] = MvRows<QString, QString>::current();
    const QFont font = MvBoxFont::font(20);
    MvTextOutlineCache::instance().clear();
    QCOMPARE(MvTextPainter::elided(100, font, text), shown);
}

MV_TEST_MAIN(tst_AnyString)
#include "tst_AnyString.moc"
