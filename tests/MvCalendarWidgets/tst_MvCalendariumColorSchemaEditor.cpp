// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendariumColorSchemaEditor.h"
#include "MvCalendar/MvCalendariumColorSchemaModel.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvGUIWidgets/MvColorDelegate.h"

using namespace Qt::StringLiterals;

namespace {

using Model = MvCalendariumColorSchemaModel;

const QColor red(200, 0, 0);

MvCalendarCellColorKey key(MvCalendarCellTypeEnum type, MvParityLogicEnum parity = MvParityLogicEnum::even,
                           MvCalendarCellColorRoleEnum role = MvCalendarCellColorRoleEnum::bgcolor)
{
    return {role, type, parity};
}

/// A month with days, or another layout, in colours in which nothing is like anything else.
MvCalendariumAppearance createAppearance(const QString &layout = u"MONTH_GRID_CLASSIC"_s)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    MvCalendariumColorSchema schema;
    const QList<MvCalendarCellType> types = MvCalendarCellType::allTypes().singleTypes();
    for (int i = 0; i < types.size(); ++i) {
        schema.setCellColor(QColor(200 + 2 * i, 250, 250),
                            {MvCalendarCellColorRoleEnum::bgcolor, types[i], MvParityLogicEnum::both});
        schema.setCellColor(Qt::black, {MvCalendarCellColorRoleEnum::textcolor, types[i], MvParityLogicEnum::both});
    }
    appearance.setColorSchema(schema);
    return appearance;
}

int rowOf(const Model &model, MvCalendarCellTypeEnum type, MvParityLogicEnum parity = MvParityLogicEnum::both)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.cellType(row) == type && model.parity(row) == parity)
            return row;
    }
    return -1;
}

bool paint(Model &model, MvCalendarCellTypeEnum type, const QColor &color,
           MvParityLogicEnum parity = MvParityLogicEnum::both)
{
    return model.setData(model.index(rowOf(model, type, parity), Model::BackgroundColumn), color);
}

} // namespace

class tst_MvCalendariumColorSchemaEditor : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreTheRenderersTypes();
    void settingAColor();
    void couplingHolds_data();
    void couplingHolds();
    void couplingEndsByAColorOfItsOwn();
    void weeksAlternate();
    void contrast_data();
    void contrast();
    void controlsByLayout();
    void equalAppearanceChangesNothing();
};

void tst_MvCalendariumColorSchemaEditor::rowsAreTheRenderersTypes()
{
    Model model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const QString &layout : {u"MONTH_GRID_CLASSIC"_s, u"MONTH_ONLY"_s, u"FAMILY_PLANNER"_s, u"HOLIDAY_BLOCK"_s}) {
        model.setUseParityLogic(false);
        const MvCalendariumAppearance appearance = createAppearance(layout);
        model.setAppearance(appearance);
        const QList<MvCalendarCellType> types = MvCalendariumRendererFactory::instance().usedCellTypes(appearance);
        QVERIFY(!types.isEmpty());
        QCOMPARE(model.rowCount(), types.size());
        for (int row = 0; row < model.rowCount(); ++row) {
            QCOMPARE(model.cellType(row), types[row]);
            QCOMPARE(model.index(row, Model::TypeColumn).data().toString(), types[row].description());
            QVERIFY(!types[row].description().isEmpty());
        }
        model.setUseParityLogic(true);
        QVERIFY(model.rowCount() >= types.size());
    }
}

void tst_MvCalendariumColorSchemaEditor::settingAColor()
{
    Model model;
    model.setAppearance(createAppearance());
    QSignalSpy changed(&model, &Model::schemaChanged);
    QVERIFY(paint(model, CALENDAR_CELL_TYPE_WEEKDAY, red));
    QCOMPARE(changed.size(), 1);
    for (const MvParityLogicEnum parity : {MvParityLogicEnum::even, MvParityLogicEnum::odd})
        QCOMPARE(model.colorSchema().cellColor(key(CALENDAR_CELL_TYPE_WEEKDAY, parity)), red);
    QVERIFY(paint(model, CALENDAR_CELL_TYPE_WEEKDAY, red)); // the same again
    QVERIFY(!paint(model, CALENDAR_CELL_TYPE_WEEKDAY, QColor()));
    QVERIFY(!model.setData(model.index(0, Model::TypeColumn), red));
    QVERIFY(!model.setData({}, red));
    QCOMPARE(changed.size(), 1);
}

void tst_MvCalendariumColorSchemaEditor::couplingHolds_data()
{
    const MvRows<int, int, bool> row; // source, follower, vacations
    row("vacations", int(CALENDAR_CELL_TYPE_SATURDAY), int(CALENDAR_CELL_TYPE_SCHOOL_VACATION), true);
    row("holidays", int(CALENDAR_CELL_TYPE_SUNDAY), int(CALENDAR_CELL_TYPE_HOLIDAY), false);
}

void tst_MvCalendariumColorSchemaEditor::couplingHolds()
{
    const auto [source, follower, vacations] = MvRows<int, int, bool>::current();
    const auto sourceType = static_cast<MvCalendarCellTypeEnum>(source);
    const auto followerType = static_cast<MvCalendarCellTypeEnum>(follower);
    Model model;
    model.setAppearance(createAppearance());
    const QColor own = model.colorSchema().cellColor(key(followerType));
    const auto treatAlike = [&, vacations = vacations](bool on) {
        vacations ? model.setTreatVacationsLikeSaturdays(on) : model.setTreatHolidaysLikeSundays(on);
    };
    QSignalSpy state(&model, vacations ? &Model::vacationsLikeSaturdaysChanged : &Model::holidaysLikeSundaysChanged);
    QSignalSpy changed(&model, &Model::schemaChanged);
    paint(model, sourceType, red);
    QCOMPARE(model.colorSchema().cellColor(key(followerType)), own); // not yet
    treatAlike(true);
    QCOMPARE(state.takeFirst().first().toBool(), true);
    QVERIFY(model.colorSchema().haveSameColors(sourceType, followerType));
    paint(model, sourceType, Qt::green);
    QCOMPARE(model.colorSchema().cellColor(key(followerType)), QColor(Qt::green));
    QCOMPARE(changed.size(), 3);
    treatAlike(false);
    QCOMPARE(state.takeFirst().first().toBool(), false);
    QCOMPARE(model.colorSchema().cellColor(key(followerType)), own);
    QCOMPARE(model.colorSchema().cellColor(key(sourceType)), QColor(Qt::green));
}

void tst_MvCalendariumColorSchemaEditor::couplingEndsByAColorOfItsOwn()
{
    Model model;
    MvCalendariumAppearance appearance = createAppearance();
    appearance.copyColors(CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY);
    QSignalSpy state(&model, &Model::holidaysLikeSundaysChanged);
    model.setAppearance(appearance);
    QCOMPARE(state.takeFirst().first().toBool(), true);
    paint(model, CALENDAR_CELL_TYPE_HOLIDAY, red);
    QCOMPARE(state.takeFirst().first().toBool(), false);
    paint(model, CALENDAR_CELL_TYPE_SUNDAY, Qt::green);
    QCOMPARE(model.colorSchema().cellColor(key(CALENDAR_CELL_TYPE_HOLIDAY)), red);
    paint(model, CALENDAR_CELL_TYPE_SUNDAY, red); // alike again
    QCOMPARE(state.takeFirst().first().toBool(), true);
    model.setTreatHolidaysLikeSundays(false); // there is nothing to go back to
    QVERIFY(!model.colorSchema().haveSameColors(CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY));
    QCOMPARE(state.takeFirst().first().toBool(), false);
}

void tst_MvCalendariumColorSchemaEditor::weeksAlternate()
{
    Model model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const MvCalendariumAppearance before = createAppearance();
    model.setAppearance(before);
    QSignalSpy changed(&model, &Model::schemaChanged);
    model.setUseParityLogic(true);
    QVERIFY(model.colorSchema().distinguishesParities()); // to be seen at once
    QCOMPARE(changed.size(), 1);
    QCOMPARE(rowOf(model, CALENDAR_CELL_TYPE_WEEKDAY), -1);
    QVERIFY(rowOf(model, CALENDAR_CELL_TYPE_TITLE) >= 0); // belongs to no week

    QVERIFY(paint(model, CALENDAR_CELL_TYPE_WEEKDAY, red, MvParityLogicEnum::odd));
    const QColor even = before.cellColor(key(CALENDAR_CELL_TYPE_WEEKDAY));
    QCOMPARE(model.colorSchema().cellColor(key(CALENDAR_CELL_TYPE_WEEKDAY)), even);
    QCOMPARE(model.index(rowOf(model, CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogicEnum::odd), 1).data(Qt::EditRole), red);

    model.setUseParityLogic(false);
    QVERIFY(model.colorSchema() == before.colorSchema());
    QVERIFY(rowOf(model, CALENDAR_CELL_TYPE_WEEKDAY) >= 0);
    model.setUseParityLogic(true);
    QCOMPARE(model.colorSchema().cellColor(key(CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogicEnum::odd)), red);
}

void tst_MvCalendariumColorSchemaEditor::contrast_data()
{
    const MvRows<QColor, QColor, QString> row; // text, background, warning
    const QString low = u"Kontrast %1 : 1, empfohlen mindestens 4,5 : 1"_s;
    row("black on white", QColor(Qt::black), QColor(Qt::white), QString());
    row("just below, by WCAG's own example", QColor(0x77, 0x77, 0x77), QColor(Qt::white), low.arg(u"4,4"_s));
    row("just enough", QColor(0x76, 0x76, 0x76), QColor(Qt::white), QString());
    row("white on white paper", QColor(Qt::white), QColor(Qt::transparent), low.arg(u"1,0"_s));
    row("not to be seen", QColor(Qt::transparent), QColor(Qt::white), QString());
}

void tst_MvCalendariumColorSchemaEditor::contrast()
{
    const auto [text, background, warning] = MvRows<QColor, QColor, QString>::current();
    MvCalendariumAppearance appearance = createAppearance();
    appearance.setCellColor(Qt::transparent, key(CALENDAR_CELL_TYPE_EMPTY, MvParityLogicEnum::both));
    appearance.setCellColor(
        text, key(CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogicEnum::both, MvCalendarCellColorRoleEnum::textcolor));
    appearance.setCellColor(background, key(CALENDAR_CELL_TYPE_WEEKDAY, MvParityLogicEnum::both));
    Model model;
    model.setAppearance(appearance);
    const QModelIndex cell = model.index(rowOf(model, CALENDAR_CELL_TYPE_WEEKDAY), Model::TextColumn);
    QCOMPARE(cell.data(Qt::AccessibleDescriptionRole).toString(), warning);
    QCOMPARE(cell.data(MvColorDelegate::WarningRole).toBool(), !warning.isEmpty());
    QVERIFY(cell.data(Qt::ToolTipRole).toString().endsWith(warning));
    QVERIFY(!cell.data(Qt::AccessibleTextRole).toString().isEmpty());
}

void tst_MvCalendariumColorSchemaEditor::controlsByLayout()
{
    MvCalendariumColorSchemaEditor editor;
    for (const QString &layout : {u"MONTH_ONLY"_s, u"MONTH_GRID_CLASSIC"_s}) {
        editor.setAppearance(createAppearance(layout));
        for (const char *name :
             {"showGridBox", "gridColorButton", "vacationsLikeSaturdaysBox", "holidaysLikeSundaysBox"})
            QCOMPARE(editor.findChild<QWidget *>(QLatin1StringView(name))->isHidden(), layout == u"MONTH_ONLY"_s);
    }
}

void tst_MvCalendariumColorSchemaEditor::equalAppearanceChangesNothing()
{
    MvCalendariumColorSchemaEditor editor;
    editor.setAppearance(createAppearance());
    QSignalSpy changed(&editor, &MvCalendariumColorSchemaEditor::schemaChanged);
    auto *box = editor.findChild<QCheckBox *>(u"parityBox"_s);
    box->click();
    auto *view = editor.findChild<QTableView *>(u"tableView"_s);
    const int rows = view->model()->rowCount();
    editor.setAppearance(editor.appearance()); // as a page that has taken the change over
    QVERIFY(box->isChecked());
    QCOMPARE(view->model()->rowCount(), rows);
    QCOMPARE(changed.size(), 1);
    editor.setAppearance(createAppearance()); // as after undo
    QVERIFY(!box->isChecked());
    QCOMPARE(changed.size(), 1);
}

MV_WIDGET_TEST_MAIN(tst_MvCalendariumColorSchemaEditor)
#include "tst_MvCalendariumColorSchemaEditor.moc"
