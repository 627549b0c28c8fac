// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProjectFixture.h"
#include "common/MvPictureList.h"
#include "panels/MvColorSchemaPicker.h"
#include "panels/MvLayoutChooser.h"
#include "panels/MvPageEdits.h"
#include "panels/MvStudioPanels.h"

#include "MvCalendar/MvCalendariumColorSchemaModel.h"
#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "flows/MvProjectFlow.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"
#include "MvWidgetTest.h"

#include <memory>

#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

/// The panels side by side over a calendar of 2027, the second page being the current one.
struct OpenPanels
{
    explicit OpenPanels(const QString &layout = u"MONTH_GRID_CLASSIC"_s)
    {
        project.newProject(MvProjectFixture::document(layout));
        panels = new MvStudioPanels(&project, &window);
        panels->setCurrentPage(1);
        auto *row = new QHBoxLayout(&window);
        for (const MvStudioPanel &panel : panels->panels())
            row->addWidget(panel.widget);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    template <class Widget>
    Widget *find(const QString &name) const
    {
        auto *widget = window.findChild<Widget *>(name);
        if (widget == nullptr)
            qFatal("no %s", qPrintable(name));
        return widget;
    }
    void forThisPage() const { panels->edits()->setScope(MvPageEdits::Scope::CurrentPage); }
    const MvCalendarPage &page(int number) const { return project.document().pages().at(number); }
    const MvCalendariumAppearance &look(int number) const { return page(number).appearance(); }
    QStringList undoTexts() const
    {
        const QUndoStack *stack = MvUndoController::instance().stack();
        QStringList texts;
        for (int step = 0; step < stack->index(); ++step)
            texts.append(stack->text(step));
        return texts;
    }
    QStringList tiles() const
    {
        QStringList names;
        const auto *picker = find<QListWidget>(u"colorSchemaPicker"_s);
        for (int row = 0; row < picker->count(); ++row)
            names.append(picker->item(row)->text());
        return names;
    }
    /// Chooses from the menu of colour schemas.
    void manage(const QString &action) const
    {
        QMenu *menu = find<QToolButton>(u"manageSchemata"_s)->menu();
        Q_EMIT menu->aboutToShow();
        menu->findChild<QAction *>(action)->trigger();
    }
    void agree(const QString &question) const
    {
        auto *box = find<QMessageBox>(question);
        box->findChild<QPushButton *>(u"agreeButton"_s)->click();
        delete box;
    }
    /// Edits that come later, as by queued signals, have come.
    static void settle() { QTest::qWait(20); }

    QWidget window; // goes after the panels' project
    MvProject project;
    MvStudioPanels *panels = nullptr;
};

QString layoutOf(const MvCalendariumAppearance &appearance)
{
    return appearance.layoutSchema().ID().toString();
}

using Control = std::function<std::pair<QVariant, QVariant>(const QWidget *)>; // what it shows, what holds

template <class Widget>
Control control(const std::function<QVariant(const Widget *)> &shown, const std::function<QVariant()> &holds)
{
    return [=](const QWidget *widget) { return std::pair(shown(qobject_cast<const Widget *>(widget)), holds()); };
}
QVariant checkedOf(const QAbstractButton *button)
{
    const auto *box = qobject_cast<const QCheckBox *>(button);
    return box ? QVariant(int(box->checkState())) : QVariant(button->isChecked() ? 2 : 0);
}
Control switched(const std::function<bool()> &holds)
{
    return control<QAbstractButton>(checkedOf, [=] { return holds() ? 2 : 0; });
}
Control numbered(const std::function<double()> &holds)
{
    const auto shown = [](const QAbstractSpinBox *box) { return box->property("value").toDouble(); };
    return control<QAbstractSpinBox>(shown, holds);
}
Control chosen(const std::function<QVariant()> &holds)
{
    const auto shown = [](const QComboBox *box) {
        return box->currentData().isValid() ? box->currentData() : QVariant(box->currentText());
    };
    return control<QComboBox>(shown, holds);
}

Control pictured(const std::function<QString()> &holds)
{
    return control<MvPictureList>([](const MvPictureList *list) { return list->currentId(); }, holds);
}

QString colorsOf(const QAbstractItemModel *model)
{
    QStringList colors;
    for (int row = 0; row < model->rowCount(); ++row)
        for (const int column : {1, 2})
            colors.append(model->index(row, column).data(Qt::EditRole).value<QColor>().name(QColor::HexArgb));
    return colors.join(u' ');
}

/// All controls of the panels by name. One that is missing here fails the walk.
QHash<QString, Control> controlsOf(const OpenPanels &open)
{
    const auto page = [&open] { return open.panels->edits()->page(); };
    const auto look = [page] { return page().appearance(); };
    const auto schema = [look] { return look().colorSchema(); };
    const auto holidays = [page] { return page().contentConfig().holidayConfig(); };
    const auto feature = [holidays](int which) {
        return switched([=] { return holidays().hasFeatures(MvCalendariumFeatures(which)); });
    };
    const auto document = [&open]() -> const MvCalendarDocument & { return open.project.document(); };
    const auto holidayState = [=] {
        const bool named = holidays().hasFeatures(FEATURE_HOLIDAYS) && look().showHolidays();
        const int on = int(named) + int(holidays().hasFeatures(FEATURE_HOLIDAY_COLORS)) +
                       int(holidays().hasFeatures(FEATURE_SCHOOL_VACATIONS));
        return on == 0 ? 0 : on == 3 ? 2 : 1;
    };
    const auto paper = [=] {
        for (const QString &name : MvPageFormat::names()) {
            MvPageFormat format = MvPageFormat::fromName(name);
            format.setOrientation(document().format().orientation());
            if (format.trimSize() == document().format().trimSize())
                return name;
        }
        return QString();
    };
    const auto weeks = [=] {
        const auto shown = page().calendarWeeks();
        return shown == MvCalendarPage::CalendarWeeks::Always ||
               (shown == MvCalendarPage::CalendarWeeks::AsAsked && holidays().hasFeatures(FEATURE_CALENDAR_WEEKS));
    };
    static const QRegularExpression ownNumber(u"(?<=^Eigene Farben) \\d+$"_s);
    const auto schemaName = [=]() -> QVariant {
        for (const auto &known : MvCalendariumColorSchemaRegistry::instance().visibleSchemata()) {
            MvCalendariumColorSchema same = known;
            same.setGridConfig(schema().gridConfig());
            if (same == schema())
                return MvCalendariumColorSchemaRegistry::instance().name(
                    MvCalendariumColorSchemaRegistry::instance().id(known));
        }
        return u"Eigene Farben"_s;
    };
    const auto colors = [=]() -> QVariant {
        MvCalendariumColorSchemaModel model;
        model.setAppearance(look());
        return colorsOf(&model);
    };
    const auto coupled = [schema](const MvCalendarCellType &a, const MvCalendarCellType &b) {
        return switched([=] { return schema().haveSameColors(a, b); });
    };
    const Control layoutControl = [look](const QWidget *widget) {
        const auto *list = qobject_cast<const QListWidget *>(widget);
        const QString layout = layoutOf(look());
        const bool isOffered = !list->model()->match(list->model()->index(0, 0), Qt::UserRole, layout).isEmpty();
        const QVariant shown = list->currentItem() ? list->currentItem()->data(Qt::UserRole) : QVariant(QString());
        return std::pair(shown, QVariant(isOffered ? layout : QString()));
    };
    return {
        {u"holidayCheckBox"_s, control<QAbstractButton>(checkedOf, holidayState)},
        {u"personalEntriesCheckBox"_s, feature(FEATURE_ENTRIES)},
        {u"publicHolidaysOnly"_s, feature(FEATURE_PUBLIC_HOLIDAYS_ONLY)},
        {u"vacationNamesDaily"_s, feature(FEATURE_VACATION_NAMES_DAILY)},
        {u"calendarWeeks"_s, switched(weeks)},
        {u"yearBox"_s, numbered([=] { return document().range().start().year(); })},
        {u"monthBox"_s,
         chosen([=] { return QLocale(QLocale::German).standaloneMonthName(document().range().start().month()); })},
        {u"languageBox"_s, chosen([=] { return holidays().language().visibleName(); })},
        {u"provinceBox"_s, chosen([=] { return holidays().province(); })},
        {u"monthCount"_s, numbered([=] { return document().range().monthCount(); })},
        {u"paper"_s,
         [paper](const QWidget *widget) { // a format of one's own may have any size, those of the named ones, too
             const QVariant shown = qobject_cast<const QComboBox *>(widget)->currentData();
             return std::pair(shown, shown.toString().isEmpty() ? shown : QVariant(paper()));
         }},
        {u"orientation"_s, chosen([=] { return int(document().format().orientation()); })},
        {u"paperWidth"_s, numbered([=] { return document().format().trimSize().width() / 10.0; })},
        {u"paperHeight"_s, numbered([=] { return document().format().trimSize().height() / 10.0; })},
        {u"binding"_s, chosen([=] { return int(document().format().binding()); })},
        {u"bindingZone"_s, numbered([=] { return document().format().bindingZone() / 10.0; })},
        {u"bleed"_s, numbered([=] { return document().format().bleed() / 10.0; })},
        {u"layoutList"_s, layoutControl},
        {u"colorSchemaPicker"_s,
         control<QListWidget>([](const QListWidget *list) { return list->currentItem()->text().remove(ownNumber); },
                              schemaName)},
        {u"tableView"_s, control<QTableView>([](const QTableView *view) { return colorsOf(view->model()); }, colors)},
        {u"vacationsLikeSaturdaysBox"_s, coupled(CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION)},
        {u"holidaysLikeSundaysBox"_s, coupled(CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY)},
        {u"parityBox"_s, switched([=] { return schema().distinguishesParities(); })},
        {u"showGridBox"_s, switched([=] { return look().gridConfig().isEnabled(); })},
        {u"gridColorButton"_s,
         control<MvColorSelectionButton>([](const MvColorSelectionButton *button) { return button->color(); },
                                         [=] { return look().gridConfig().color(); })},
        {u"fontFamilyBox"_s, chosen([=] { return look().fontSettings().fontName(); })},
        {u"fontSizeBox"_s, numbered([=] { return 100 + look().fontSettings().fontSizePercentage(); })},
        {u"holidayFontSizeBox"_s, numbered([=] { return 100 + look().fontSettings().fontSizePercentageHolidays(); })},
        {u"themeList"_s, pictured([=] { return document().themeId(); })},
        {u"templateList"_s, pictured([=] { return page().isSimple() ? u"-"_s : page().templateId(); })},
        {u"countColumnsBox"_s, numbered([=] { return look().columnHeadersList().size(); })},
        {u"columnHeadersList"_s,
         control<QListView>(
             [](const QListView *list) { return qobject_cast<QStringListModel *>(list->model())->stringList(); },
             [=] { return look().columnHeadersList().replaceInStrings(u" "_s, QString()); })},
    };
}

bool isShown(const QWidget *control)
{
    for (const QWidget *widget = control; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (widget->isHidden())
            return false;
    }
    return true;
}

QList<QWidget *> shownControls(const OpenPanels &open)
{
    QList<QWidget *> controls;
    for (auto *widget : open.window.findChildren<QWidget *>()) {
        const auto *button = qobject_cast<QAbstractButton *>(widget);
        const bool isControl = (button && (button->isCheckable() || qobject_cast<MvColorSelectionButton *>(widget))) ||
                               qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget) ||
                               (qobject_cast<QAbstractItemView *>(widget) && !widget->window()->isHidden());
        bool isPart = widget->objectName().startsWith(u"qt_"_s) || widget->window() != &open.window ||
                      qobject_cast<QHeaderView *>(widget);
        for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget())
            isPart = isPart || qobject_cast<QComboBox *>(parent) || qobject_cast<QAbstractSpinBox *>(parent) ||
                     parent->objectName() == u"entriesPanel"; // which is about no page
        if (isControl && !isPart && isShown(widget))
            controls.append(widget);
    }
    return controls;
}

/// The controls that tell something else than holds; empty when all tell the truth.
QString lies(const OpenPanels &open)
{
    const QHash<QString, Control> known = controlsOf(open);
    QStringList found;
    for (const QWidget *widget : shownControls(open)) {
        const auto row = known.constFind(widget->objectName());
        if (row == known.constEnd()) {
            found.append(
                u"unknown: %1 %2"_s.arg(QLatin1StringView(widget->metaObject()->className()), widget->objectName()));
            continue;
        }
        const auto [shown, holds] = (*row)(widget);
        if (shown != holds && shown.toString() + holds.toString() != QString())
            found.append(u"%1: %2 for %3"_s.arg(widget->objectName(), shown.toString(), holds.toString()));
    }
    return found.join(u'\n');
}

} // namespace

/// The panels, driven as a user does, with undo and redo.
class tst_MvStudioPanels : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showingEditsNothing();
    void everyControlTellsThePage();
    void recolouringLeavesTheShippedSchema();
    void ownColorsStayAtHand();
    void ownColorsAreKept();
    void picturesOfLayouts();
};

void tst_MvStudioPanels::init()
{
    MvWidgetTest::failOnWarnings();
    MvUndoController::instance().clear();
}

void tst_MvStudioPanels::showingEditsNothing()
{
    OpenPanels open;
    for (const QString &layout : {u"FAMILY_PLANNER"_s, u"MONTH_ONLY"_s, u"YEAR_PLANNER"_s, u"MONTH_GRID_LINES"_s}) {
        MvCalendarDocument document = open.project.document();
        MvCalendariumAppearance appearance = MvProjectFixture::appearance(layout, u"NIGHT"_s);
        appearance.setFontSettings({u"Lato"_s, 20, -30, QFont::Normal, QFont::MixedCase, 0.0});
        document.setAppearance(appearance);
        open.project.newProject(document);
        OpenPanels::settle();
        QVERIFY(open.project.document() == document);
    }
    for (const int page : {2, 0}) {
        open.panels->setCurrentPage(page);
        OpenPanels::settle();
    }
    for (QWidget *widget : shownControls(open)) { // scrolling the panel with the mouse over a box
        QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        if (qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractSpinBox *>(widget))
            QCoreApplication::sendEvent(widget, &wheel);
    }
    OpenPanels::settle();
    QCOMPARE(open.undoTexts(), QStringList());
}

/// At the start, while everything is used once, on other pages, in other layouts, by undo and redo, and in a calendar
/// from elsewhere.
void tst_MvStudioPanels::everyControlTellsThePage()
{
    OpenPanels open;
    open.project.newProject(MvProjectFlow::firstDocument());
    OpenPanels::settle();
    QCOMPARE(lies(open), QString());
    QCOMPARE(open.find<QCheckBox>(u"holidayCheckBox"_s)->checkState(), Qt::Checked);
    for (const QString &layout : {u"FAMILY_PLANNER"_s, u"MONTH_ONLY"_s, u"YEAR_PLANNER"_s, u"MONTH_GRID_LINES"_s}) {
        open.panels->edits()->setLayout(MvCalendariumLayoutSchemaID(layout));
        OpenPanels::settle();
        QVERIFY2(lies(open).isEmpty(), qPrintable(layout + u": "_s + lies(open)));
        for (const bool forThisPage : {false, true}) {
            open.panels->edits()->setScope(forThisPage ? MvPageEdits::Scope::CurrentPage
                                                       : MvPageEdits::Scope::AllPages);
            for (const QPointer<QWidget> widget : shownControls(open)) {
                if (!widget || !widget->isEnabled())
                    continue;
                if (auto *box = qobject_cast<QCheckBox *>(widget))
                    box->click();
                else if (auto *list = qobject_cast<QComboBox *>(widget))
                    list->setCurrentIndex((list->currentIndex() + 1) % list->count());
                else if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget))
                    spin->stepUp();
                else
                    continue;
                OpenPanels::settle();
                QVERIFY2(lies(open).isEmpty(),
                         qPrintable(layout + u", "_s + widget->objectName() + u": "_s + lies(open)));
            }
        }
        open.panels->setCurrentPage(int(open.project.document().pages().size()) - 1);
        QVERIFY2(lies(open).isEmpty(), qPrintable(layout + u", last page: "_s + lies(open)));
    }
    auto *stack = MvUndoController::instance().stack();
    for (const bool back : {true, false}) {
        while (back ? stack->canUndo() : stack->canRedo()) {
            const QString text = back ? stack->undoText() : stack->redoText();
            back ? stack->undo() : stack->redo();
            open.panels->setCurrentPage(0);
            OpenPanels::settle();
            QVERIFY2(lies(open).isEmpty(), qPrintable(text + u": "_s + lies(open)));
        }
    }

    MvCalendarDocument foreign = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s);
    foreign.setHolidayConfig({MvLocale(u"de_AT"_s), {}, FEATURE_HOLIDAYS});
    MvCalendariumAppearance nameless = foreign.appearance();
    nameless.setShowHolidays(false);
    for (const bool isNameless : {false, true}) {
        if (isNameless)
            foreign.setAppearance(nameless);
        open.project.newProject(foreign);
        OpenPanels::settle();
        QCOMPARE(lies(open), QString());
        auto *box = open.find<QCheckBox>(u"holidayCheckBox"_s);
        QVERIFY(box->checkState() != Qt::Checked);
        while (box->checkState() != Qt::Checked) // can be had back, names and all
            box->click();
        QCOMPARE(lies(open), QString());
        QVERIFY(open.panels->edits()->page().appearance().showHolidays());
    }
}

void tst_MvStudioPanels::recolouringLeavesTheShippedSchema()
{
    OpenPanels open;
    const MvCalendariumColorSchemaID id(u"PAPER_WHITE"_s);
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    const MvCalendariumColorSchema shipped = registry.findSchema(id);
    const int known = int(registry.allSchemata().size());
    auto *table = open.find<QTableView>(u"tableView"_s);
    QVERIFY(table->model()->setData(table->model()->index(0, 1), QColor(1, 2, 3), Qt::EditRole));
    QVERIFY(open.look(4).colorSchema() != shipped);
    QCOMPARE(registry.findSchema(id), shipped);
    QCOMPARE(int(registry.allSchemata().size()), known);
    auto *picker = open.find<MvColorSchemaPicker>(u"colorSchemaPicker"_s);
    QCOMPARE(picker->currentItem()->text(), u"Eigene Farben"_s);
    const int rows = picker->count();

    // the file has the colours of its own
    QTemporaryDir folder;
    const QFileInfo file(folder.filePath(u"kalender.xml"_s));
    QVERIFY(open.project.saveAs(file));
    QCOMPARE(MvProjectFile::read(file).document.pages().at(4).appearance().colorSchema(), open.look(4).colorSchema());

    picker->setCurrentRow(1); // the shipped one follows the own one
    QCOMPARE(open.look(4).cellColor(MvCalendarCellColorKey(MvCalendarCellColorRoleEnum::bgcolor,
                                                           CALENDAR_CELL_TYPE_SUNDAY, MvParityLogicEnum::even)),
             shipped.cellColor(MvCalendarCellColorKey(MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_SUNDAY,
                                                      MvParityLogicEnum::even)));
    QCOMPARE(picker->count(), rows); // the own ones are still at hand
    QVERIFY(open.project.save());
    QCOMPARE(picker->count(), rows - 1);
}

void tst_MvStudioPanels::ownColorsStayAtHand()
{
    const OpenPanels open;
    auto *picker = open.find<MvColorSchemaPicker>(u"colorSchemaPicker"_s);
    auto *table = open.find<QTableView>(u"tableView"_s);
    const QStringList shipped = open.tiles();
    const int height = picker->height();
    const auto recolour = [table](const QColor &color) {
        table->model()->setData(table->model()->index(0, 1), color, Qt::EditRole);
    };
    recolour(QColor(1, 2, 3));
    open.forThisPage();
    recolour(QColor(4, 5, 6));
    QCOMPARE(open.tiles(), (QStringList{u"Eigene Farben"_s, u"Eigene Farben 2"_s} + shipped));
    QCOMPARE(picker->currentRow(), 1);
    const MvCalendariumColorSchema own = open.look(1).colorSchema();
    picker->setCurrentRow(4);
    QCOMPARE(open.tiles().size(), shipped.size() + 2);
    picker->setCurrentRow(1);
    QCOMPARE(open.look(1).colorSchema(), own);
    for (int step = 0; step < 3; ++step)
        MvUndoController::instance().undo();
    QCOMPARE(open.tiles(), QStringList{u"Eigene Farben"_s} + shipped); // those of the page alone are undone
    QCOMPARE(picker->height(), height);                                // what stands below has not moved
    MvUndoController::instance().undo();
    QCOMPARE(open.tiles(), shipped);
}

/// Under a name, for all calendars: no step of the document's.
void tst_MvStudioPanels::ownColorsAreKept()
{
    OpenPanels open;
    auto *picker = open.find<MvColorSchemaPicker>(u"colorSchemaPicker"_s);
    auto *keep = open.find<QPushButton>(u"keepColors"_s);
    QVERIFY(!keep->isEnabled());
    const QStringList shipped = open.tiles();
    auto *table = open.find<QTableView>(u"tableView"_s);
    table->model()->setData(table->model()->index(0, 1), QColor(1, 2, 3), Qt::EditRole);
    const auto answerName = [&open](const QString &name, bool isPossible) {
        auto *dialog = open.find<QDialog>(u"schemaNameDialog"_s);
        dialog->findChild<QLineEdit *>()->setText(name);
        QCOMPARE(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled(), isPossible);
        dialog->done(isPossible ? QDialog::Accepted : QDialog::Rejected);
        delete dialog;
    };
    keep->click();
    answerName(u"NACHT"_s, false);
    {
        QVERIFY(QDir().mkpath(MvCalendariumColorSchemaRegistry::systemUserSchemaFile().path()));
        const MvFileGuard otherProgram(MvCalendariumColorSchemaRegistry::systemUserSchemaFile());
        keep->click();
        answerName(u"Sand & Meer"_s, true);
        QVERIFY(open.find<QMessageBox>(u"errorMessage"_s)->text().contains(u"000-user-calendar-schema.xml"_s));
        delete open.find<QMessageBox>(u"errorMessage"_s);
        QCOMPARE(open.tiles(), QStringList{u"Eigene Farben"_s} + shipped);
    }
    keep->click();
    answerName(u"Sand & Meer"_s, true);
    QCOMPARE(open.tiles(), QStringList{u"Sand & Meer"_s} + shipped);
    QCOMPARE(picker->currentRow(), 0);
    QCOMPARE(open.undoTexts().join(u"; "), u"Farben ändern"_s);

    open.manage(u"renameSchema"_s);
    answerName(u"Sand"_s, true);
    open.manage(u"hideSchema"_s); // stays in sight as long as the page has it
    QCOMPARE(open.tiles(), QStringList{u"Sand"_s} + shipped);
    picker->setCurrentRow(1);
    QCOMPARE(open.tiles(), shipped);
    MvUndoController::instance().undo();
    open.manage(u"showSchema"_s);
    open.manage(u"deleteSchema"_s);
    open.agree(u"deleteSchemaQuestion"_s);
    QCOMPARE(open.tiles(), QStringList{u"Eigene Farben"_s} + shipped);
    keep->click();
    answerName(u"Sand"_s, true);
    open.manage(u"resetSchemata"_s);
    open.agree(u"resetSchemataQuestion"_s);
    QCOMPARE(open.tiles(), QStringList{u"Eigene Farben"_s} + shipped);
}

/// They have the page's colours, its lines too, and the page's own layout is in sight.
void tst_MvStudioPanels::picturesOfLayouts()
{
    OpenPanels open(u"WEEK_COLUMNS"_s);
    open.window.resize(1400, 500);
    auto *list = open.find<QListWidget>(u"layoutList"_s);
    MvLayoutChooser reference(nullptr, list->iconSize());
    reference.setDocument(open.project.document());
    reference.show();
    const auto picture = [](const QListWidget *of, int row) {
        return of->item(row)->icon().pixmap(of->iconSize()).toImage();
    };
    const auto *expected = reference.findChild<QListWidget *>();
    for (const QString &name : {u"Monatsraster klassisch"_s, u"Familienplaner"_s, u"Jahresplaner"_s}) {
        const int row = list->row(list->findItems(name, Qt::MatchExactly).value(0));
        QVERIFY(row >= 0);
        QTRY_COMPARE(picture(list, row), picture(expected, row));
    }
    QVERIFY(list->verticalScrollBar()->maximum() > 0);
    QVERIFY(list->viewport()->rect().contains(list->visualItemRect(list->currentItem())));
}

MV_WIDGET_TEST_MAIN(tst_MvStudioPanels)
#include "tst_MvStudioPanels.moc"
