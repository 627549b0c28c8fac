// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarBorderType.h"
#include "MvCalendar/MvCalendarCellColorKey.h"
#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvCalendarFeatureType.h"
#include "MvCalendar/MvCalendarRenderingInformation.h"
#include "MvCalendar/MvCalendariumType.h"

using namespace Qt::StringLiterals;

/// The names are a file format: what is read and what is written, misspellings included.
class tst_CalendarVocabulary : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data();
    void decodes();
    void encodes_data();
    void encodes();
    void bareWrapperDoesNotPublishAnEmptyTable();
    void everyNamedCellTypeHasADisplayName();
    void expandsToInvisibleCells_data();
    void expandsToInvisibleCells();
};

void tst_CalendarVocabulary::decodes_data()
{
    const MvRows<int, int> row; // decoded, value
    row("blanks, case and empty parts",
        MvCalendarRenderingInformation(u"calendar_render_title,  CALENDAR_render_DAYS ,,"_s).toInt(), (256 | 512));
    row("union of the comment bits", MvCalendarRenderingInformation(u"calendar_render_comments"_s).toInt(), 0xF0000);
    row("misspelt border", MvCalendarBorderType(u"CALENDER_BORDER_ALL"_s).toInt(), 15);
    row("both spellings together", MvCalendarBorderType(u"CALENDAR_BORDER_LEFT,CALENDER_BORDER_TOP"_s).toInt(), 5);
    row("second name of a cell type", MvCalendarCellType(u"CALENDAR_CELL_TYPE_HEAD_EMPTY"_s).toInt(), 2048);
    row("unknown cell type", MvCalendarCellType(u"CALENDAR_CELL_TYPE_MOON"_s).toInt(), 0);
    row("unknown parity is both", MvParityLogic(u"gerade"_s).toInt(), 3);
    row("no parity", MvParityLogic(QString()).toInt(), 0);
    row("unknown role", MvCalendarCellColorRole(u"shadow"_s).toInt(), 0);
    row("feature without a name", MvCalendarFeatureType(u"articleVariants"_s).toInt(), 0);
    row("calendarium type", MvCalendariumType(u"calendar_one_week_per_row"_s).toInt(), 1);
}

void tst_CalendarVocabulary::decodes()
{
    const auto [decoded, value] = MvRows<int, int>::current();
    QCOMPARE(decoded, value);
}

void tst_CalendarVocabulary::encodes_data()
{
    const MvRows<QString, QString> row; // encoded, text
    row("all sides singly", MvCalendarBorderType(CALENDAR_BORDER_ALL).encodeCSV(),
        u"CALENDAR_BORDER_LEFT, CALENDAR_BORDER_RIGHT, CALENDAR_BORDER_TOP, CALENDAR_BORDER_BOTTOM"_s);
    row("all sides as a whole", MvCalendarBorderType(15).encode(), u"CALENDAR_BORDER_ALL"_s);
    row("first name wins", MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_EMPTY).encode(), u"CALENDAR_CELL_TYPE_TOPLINE"_s);
    row("nothing as a set", MvCalendarRenderingInformation(0).encodeCSV(), QString());
    row("nothing by name", MvCalendarRenderingInformation(0).encode(), u"calendar_render_nothing"_s);
    row("bit without a name", MvCalendarRenderingInformation(2 | 4 | 16).encodeCSV(),
        u"calendar_render_year_short, , calendar_render_month_number"_s);
    row("set of types has no name", MvCalendarCellType(3).encode(), QString());
    row("parity as a whole", MvParityLogic(3).encode(), u"both"_s);
    row("feature without a name", MvCalendarFeatureType(128).encodeCSV(), QString());
    row("which is shown", MvCalendarFeatureType(128).visibleName(), u"Artickelvarianten"_s);
    row("role keys", MvCalendarCellColorRole(1).evenKey() + u' ' + MvCalendarCellColorRole(2).oddKey(),
        u"bgcoloreven textcolorodd"_s);
}

void tst_CalendarVocabulary::encodes()
{
    const auto [encoded, text] = MvRows<QString, QString>::current();
    QCOMPARE(encoded, text);
}

void tst_CalendarVocabulary::bareWrapperDoesNotPublishAnEmptyTable()
{
    // a union is a bare wrapper; asking it first for its name must not leave the enumeration without names
    const auto parities = MvParityLogic(MvParityLogicEnum::even) | MvParityLogic(MvParityLogicEnum::odd);
    parities.encode();
    QCOMPARE(MvParityLogic(parities).encode(), u"both"_s);
}

void tst_CalendarVocabulary::everyNamedCellTypeHasADisplayName()
{
    const QList<MvCalendarCellType> types = MvCalendarCellType::allTypes().singleTypes();
    QCOMPARE(types.size(), 20);
    QSet<QString> descriptions;
    for (const MvCalendarCellType &type : types)
        descriptions.insert(type.description());
    QCOMPARE(descriptions.size(), 20); // all different
    QVERIFY(!descriptions.contains(QString()));
    QCOMPARE(MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_EMPTY).description(), u"Überschrift sonstige"_s);
    QCOMPARE(MvCalendarCellType(3).description(), QString());
}

void tst_CalendarVocabulary::expandsToInvisibleCells_data()
{
    const MvRows<int, int, int> row; // set, visible, expanded
    const int all = MvCalendarCellType::allTypes().toInt();
    const int onTheirOwn = CALENDAR_CELL_TYPE_SPECIAL_DAY | CALENDAR_CELL_TYPE_COMMENT | CALENDAR_CELL_TYPE_EMPTY |
                           CALENDAR_CELL_TYPE_EXTRA_INFORMATION;
    row("a weekday brings nearly all", int(CALENDAR_CELL_TYPE_WEEKDAY), 0, (all & ~onTheirOwn));
    row("Sunday alone", int(CALENDAR_CELL_TYPE_SUNDAY), 0,
        (CALENDAR_CELL_TYPE_SUNDAY | CALENDAR_CELL_TYPE_HEAD_SUNDAY | CALENDAR_CELL_TYPE_HOLIDAY |
         CALENDAR_CELL_TYPE_HEAD_HOLIDAY));
    row("visible types stay out and trigger nothing", int(CALENDAR_CELL_TYPE_SUNDAY),
        int(CALENDAR_CELL_TYPE_HEAD_SUNDAY), (CALENDAR_CELL_TYPE_SUNDAY | CALENDAR_CELL_TYPE_HOLIDAY));
    row("no trigger", int(CALENDAR_CELL_TYPE_COMMENT), 0, int(CALENDAR_CELL_TYPE_COMMENT));
}

void tst_CalendarVocabulary::expandsToInvisibleCells()
{
    const auto [set, visible, expanded] = MvRows<int, int, int>::current();
    MvCalendarCellType type(set);
    type.expandToInvisibleCells(MvCalendarCellType(visible));
    QCOMPARE(type.toInt(), expanded);
}

MV_TEST_MAIN(tst_CalendarVocabulary)
#include "tst_CalendarVocabulary.moc"
