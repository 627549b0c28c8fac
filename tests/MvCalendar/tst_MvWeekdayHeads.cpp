// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvWeekdayHeads.h"
#include "MvPaint/MvPaintRecorder.h"

#include <QPainter>

using namespace Qt::StringLiterals;

using Form = MvWeekdayHeads::Form;

namespace {

MvPageFixture pageIn(const QString &language)
{
    const MvCalendariumAppearance appearance =
        MvPageFixture::appearance(u"calendar_render_days_of_week"_s, MvPageFixture::defaultCells());
    MvPageFixture page(appearance, QDate(2027, 5, 1));
    const MvCalendariumHolidayConfig holidays(MvLocale(language), QString(), FEATURE_NONE);
    page.renderer().setCalendarInformation({QDate(2027, 5, 1), holidays}, MvDateRange());
    return page;
}

} // namespace

class tst_MvWeekdayHeads : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void allAlike_data();
    void allAlike();
};

void tst_MvWeekdayHeads::allAlike_data()
{
    const MvRows<QString, Form, QSizeF, QString, int> row; // language, longest, cell, heads, pixelSize
    // the box font is 12.5 wide and 17.5 high at 25; 0.3 of 25 and a unit at each edge are kept free
    const QString german = u"de_DE"_s;
    const QString shortNames = u"Mo Di Mi Do Fr Sa So"_s;
    row("long", german, Form::Long, QSizeF(135, 40), u"Montag Dienstag Mittwoch Donnerstag Freitag Samstag Sonntag"_s,
        25);
    row("one does not fit", german, Form::Long, QSizeF(134, 40), shortNames, 25);
    row("wide, but short ones are wanted", german, Form::Short, QSizeF(400, 40), shortNames, 25);
    row("a little smaller", german, Form::Short, QSizeF(33, 40), shortNames, 23);
    row("letters", german, Form::Short, QSizeF(30, 40), u"M D M D F S S"_s, 25);
    row("only some short names fit", u"hu_HU"_s, Form::Short, QSizeF(40, 40), u"H K S C P S V"_s, 25);
    row("what they have in common is no letter", u"ca_ES"_s, Form::Short, QSizeF(30, 40), u"l t c j v s g"_s, 25);
    row("letters at the floor of type", german, Form::Short, QSizeF(17, 40), u"M D M D F S S"_s, 23);
    row("low cells", german, Form::Short, QSizeF(100, 17.5), shortNames, 23);
    row("too narrow", german, Form::Short, QSizeF(14, 40), QString(), 0);
    row("too low", german, Form::Short, QSizeF(100, 15), QString(), 0);
    row("no room at all", german, Form::Long, QSizeF(-5, 0), QString(), 0);
}

void tst_MvWeekdayHeads::allAlike()
{
    const auto [language, longest, cell, heads, pixelSize] = MvRows<QString, Form, QSizeF, QString, int>::current();
    MvPageFixture page = pageIn(language);
    const MvWeekdayHeads made(page.renderer(), longest, cell, true);
    QStringList drawn;
    for (int day = 1; day <= 7; ++day) {
        MvPaintRecorder recorder(nullptr);
        QPainter painter(&recorder);
        const QRectF rect(QPointF(100, 200), cell);
        made.draw(painter, rect, MvCalendarCellTypeConfig(MvCalendariumRenderer::headCellTypeWeekDay(day)), day, true);
        painter.end();
        for (const MvPaintRecording::Item &item : recorder.recording().items(MvPaintRecording::Item::Text)) {
            drawn.append(item.text);
            QVERIFY2(rect.contains(item.bounds), qPrintable(item.text));
        }
    }
    QCOMPARE(drawn.join(u' '), heads);
    QCOMPARE(made.form() == Form::None, heads.isEmpty());
    if (!heads.isEmpty())
        QCOMPARE(made.pixelSize(CALENDAR_CELL_TYPE_HEAD_SUNDAY), pixelSize);
}

MV_TEST_MAIN(tst_MvWeekdayHeads)
#include "tst_MvWeekdayHeads.moc"
