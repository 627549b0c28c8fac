// SPDX-License-Identifier: LGPL-2.1-or-later
// Opens the studio's windows one after another, as a user would, and saves what the screen shows. Run by the script of
// the same name: make_screenshots FOLDER THEME LANGUAGE SAMPLES [STATE...]; --list names the states.

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventFileIntake.h"
#include "MvCalendar/MvCalendarEventListWidget.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvEntryTableDialog.h"
#include "MvCalendar/MvUserColorSchemata.h"
#include "MvGUIWidgets/MvColorPalettePopup.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageEntries.h"
#include "pages/MvPageItem.h"
#include "common/MvProgressDialog.h"
#include "MvProject/MvProject.h"
#include "flows/MvEntryImportReport.h"
#include "flows/MvProjectFlow.h"
#include "flows/MvRecoveryDialog.h"
#include "MvStudioApplication.h"
#include "common/MvStudioSettings.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"
#include "pages/MvPageSelection.h"
#include "panels/MvInspector.h"
#include "window/MvStudioWindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int settling = 700;      // milliseconds: layouts, animations and the page itself
constexpr int longSettling = 2500; // pictures that come one by one

class Screenshots
{
public:
    struct State
    {
        const char *name;
        void (Screenshots::*show)();
        int settling;
    };

    Screenshots(MvStudioApplication *studio, const QDir &folder, const QDir &samples);

    static QList<State> states();
    void take(const State &state);

private:
    MvStudioWindow *window() const { return m_studio->window(); }
    MvProject *project() const { return m_studio->project(); }
    MvPageCanvas *canvas() const { return window()->findChild<MvPageCanvas *>(); }
    template <class Widget>
    Widget *find(const char *name) const
    {
        return window()->findChild<Widget *>(QLatin1StringView(name));
    }
    QString sample(const QString &name) const { return m_samples.absoluteFilePath(name); }
    void trigger(const char *action) { find<QAction>(action)->trigger(); }
    void openPanel(const char *name) { window()->inspector()->open(QLatin1StringView(name)); }
    void popUp(QMenu *menu);
    QPoint pointOf(const QDate &date) const;
    void edit(const std::function<void(MvCalendarDocument &)> &change);
    void setPageFoto(MvFotoFrame::Placement placement);
    void setEntries(const QString &file);
    void reset();

    void welcome();
    void start() {}
    void foto() { setPageFoto(MvFotoFrame::Placement::Top); }
    void fotoSelected();
    void fotoLeft() { setPageFoto(MvFotoFrame::Placement::Left); }
    void portrait();
    void themes();
    void templates();
    void emptyFrames() { useTheme(false); }
    void album() { useTheme(true); }
    void fotoPanel();
    void textPanel();
    void dayPanel() { canvas()->selection()->selectDay(project()->document().pageDates().at(4).addDays(11)); }
    void marks();
    void frames();
    void calendarium();
    void newPlanner();
    void printCheck();
    void useTheme(bool hasFotos);
    void select(MvPageElement::Kind kind);
    void content() { openPanel("contentPanel"); }
    void layouts() { openPanel("layoutPanel"); }
    void colors() { openPanel("colorPanel"); }
    void colorsDown();
    void colorPalette();
    void colorWarning();
    void colorsMenu();
    void colorsName();
    void fonts() { openPanel("fontPanel"); }
    void columns();
    void columnsEmpty() { openPanel("columnHeadersPanel"); }
    void entries() { openPanel("entriesPanel"); }
    void entriesEmpty();
    void entriesGrouped();
    void groups();
    void entriesMenu();
    void entriesTake();
    void year();
    void dayFocus();
    void pageMenu();
    void fileMenu() { popUp(window()->menuBar()->actions().first()->menu()); }
    void viewMenu() { popUp(window()->menuBar()->actions().at(2)->menu()); }
    void dayNew();
    void bubbleNew();
    void bubbleSeveral();
    void entryDrag();
    void tableOpen();
    void importReport();
    void dayWithFoto();
    void newCalendar() { trigger("newProject"); }
    void layoutChooser() { trigger("chooseLayout"); }
    void pageSetup() { trigger("pageSetup"); }
    void exportPdf();
    void exportSheets();
    void exportPress();
    void exportPng() { trigger("exportPng"); }
    void progress();
    void settings() { trigger("settings"); }
    void recovery();
    void shortcuts() { trigger("shortcuts"); }
    void about() { trigger("about"); }
    void closeQuestion();
    void error();
    void noPrinter() { trigger("print"); }
    void preview();
    void unfitting();
    void entriesReplace();
    void entriesClear();
    void entriesUnreadable();
    void entriesVersions();
    void entriesUnsaved();
    void entriesLeave();

    MvStudioApplication *m_studio;
    QDir m_folder;
    QDir m_samples;
    int m_number = 0;
};

Screenshots::Screenshots(MvStudioApplication *studio, const QDir &folder, const QDir &samples)
    : m_studio(studio)
    , m_folder(folder)
    , m_samples(samples)
{
    window()->setGeometry(QGuiApplication::primaryScreen()->geometry());
    window()->activateWindow();
    if (!QTest::qWaitForWindowExposed(window()))
        qFatal("the window does not show up");
}

QList<Screenshots::State> Screenshots::states()
{
    using S = Screenshots;
    return {
        {"welcome", &S::welcome, longSettling},
        {"main", &S::start, longSettling},
        {"photo", &S::foto, longSettling},
        {"photo-selected", &S::fotoSelected, longSettling},
        {"photo-left", &S::fotoLeft, longSettling},
        {"portrait", &S::portrait, longSettling},
        {"year", &S::year, longSettling},
        {"empty-frames", &S::emptyFrames, longSettling},
        {"album", &S::album, longSettling},
        {"photo-panel", &S::fotoPanel, longSettling},
        {"text-panel", &S::textPanel, longSettling},
        {"day-panel", &S::dayPanel, settling},
        {"print-marks", &S::marks, longSettling},
        {"frames", &S::frames, longSettling},
        {"calendarium", &S::calendarium, longSettling},
        {"themes", &S::themes, 3 * longSettling},
        {"templates", &S::templates, longSettling},
        {"content", &S::content, settling},
        {"layouts", &S::layouts, longSettling},
        {"colors", &S::colors, settling},
        {"colors-down", &S::colorsDown, settling},
        {"color-palette", &S::colorPalette, settling},
        {"color-warning", &S::colorWarning, settling},
        {"colors-menu", &S::colorsMenu, settling},
        {"colors-name", &S::colorsName, settling},
        {"fonts", &S::fonts, settling},
        {"columns", &S::columns, settling},
        {"columns-empty", &S::columnsEmpty, settling},
        {"entries", &S::entries, settling},
        {"entries-empty", &S::entriesEmpty, settling},
        {"entries-grouped", &S::entriesGrouped, settling},
        {"groups", &S::groups, settling},
        {"entries-menu", &S::entriesMenu, settling},
        {"entries-take", &S::entriesTake, settling},
        {"day-focus", &S::dayFocus, settling},
        {"page-menu", &S::pageMenu, settling},
        {"file-menu", &S::fileMenu, settling},
        {"view-menu", &S::viewMenu, settling},
        {"day-new", &S::dayNew, settling},
        {"day-photo", &S::dayWithFoto, settling},
        {"bubble-new", &S::bubbleNew, settling},
        {"bubble-several", &S::bubbleSeveral, settling},
        {"entry-drag", &S::entryDrag, settling},
        {"table-open", &S::tableOpen, settling},
        {"import-report", &S::importReport, settling},
        {"new-calendar", &S::newCalendar, longSettling},
        {"new-planner", &S::newPlanner, longSettling},
        {"layout-chooser", &S::layoutChooser, longSettling},
        {"page-setup", &S::pageSetup, settling},
        {"print-check", &S::printCheck, longSettling},
        {"export-pdf", &S::exportPdf, longSettling},
        {"export-sheets", &S::exportSheets, settling},
        {"export-press", &S::exportPress, settling},
        {"export-png", &S::exportPng, settling},
        {"progress", &S::progress, settling},
        {"settings", &S::settings, settling},
        {"recovery", &S::recovery, settling},
        {"shortcuts", &S::shortcuts, settling},
        {"about", &S::about, settling},
        {"close-question", &S::closeQuestion, settling},
        {"error", &S::error, settling},
        {"no-printer", &S::noPrinter, settling},
        {"print-preview", &S::preview, longSettling},
        {"unfitting", &S::unfitting, settling},
        {"entries-replace", &S::entriesReplace, settling},
        {"entries-clear", &S::entriesClear, settling},
        {"entries-unreadable", &S::entriesUnreadable, settling},
        {"entries-versions", &S::entriesVersions, settling},
        {"entries-unsaved", &S::entriesUnsaved, settling},
        {"entries-leave", &S::entriesLeave, settling},
    };
}

void Screenshots::take(const State &state)
{
    reset();
    QTest::qWait(settling / 4);
    (this->*state.show)();
    QTest::qWait(state.settling);
    const QString name = u"%1-%2.png"_s.arg(++m_number, 2, 10, QChar(u'0')).arg(QLatin1StringView(state.name));
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(m_folder.filePath(name)))
        qFatal("%s cannot be written", qPrintable(name));
}

// ---- what every picture begins with

/// A calendar of the coming year with the sample entries, its second page, nothing open.
void Screenshots::reset()
{
    QToolTip::hideText();
    canvas()->entries()->cancel();
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *progress = qobject_cast<MvProgressDialog *>(widget))
            progress->finish();
        else if (widget != window() && qobject_cast<QDialog *>(widget))
            widget->close();
    }
    MvStudioSettings::setWelcomeShown(false);
    if (find<QAction>("showWelcome")->isChecked())
        trigger("showWelcome");
    auto &registry = MvCalendarEventRegistry::instance();
    QDir().rmdir(registry.calendarEventsDir().filePath()); // of the states with trouble
    registry.userFile().dismissReadProblem();
    setEntries(u"eintraege.xml"_s);
    MvUserColorSchemata::reset();
    if (find<QAction>("printMarks")->isChecked())
        trigger("printMarks");
    MvCalendarDocument document = MvProjectFlow::firstDocument();
    MvCalendariumHolidayConfig holidays = document.holidayConfig();
    holidays.setProvince(u"BY"_s);
    document.setHolidayConfig(holidays);
    project()->newProject(document);
    window()->setCurrentPage(4);
    openPanel("contentPanel");
    canvas()->zoomToFit();
    canvas()->setFocus();
    window()->activateWindow();
    QCursor::setPos(QPoint(2, window()->height() - 2));
}

void Screenshots::setEntries(const QString &file)
{
    MvCalendarEventRegistry::instance().setOwnEvents( // a new calendar starts with them
        file.isEmpty() ? MvCalendarEventList() : MvCalendarEventFile::read(QFileInfo(sample(file))).events);
}

void Screenshots::edit(const std::function<void(MvCalendarDocument &)> &change)
{
    MvCalendarDocument document = project()->document();
    change(document);
    project()->change(document, u"…"_s);
}

void Screenshots::popUp(QMenu *menu)
{
    QAction *action = menu->menuAction();
    menu->popup(window()->menuBar()->mapToGlobal(window()->menuBar()->actionGeometry(action).bottomLeft()));
}

/// Of the viewport.
QPoint Screenshots::pointOf(const QDate &date) const
{
    for (int y = 0; y < canvas()->viewport()->height(); y += 6)
        for (int x = 0; x < canvas()->viewport()->width(); x += 6) {
            const QPoint point(x, y);
            if (canvas()->pageItem()->dateAt(canvas()->mapToScene(point)) == date)
                return point + QPoint(30, 30);
        }
    return canvas()->viewport()->rect().center();
}

void Screenshots::setPageFoto(MvFotoFrame::Placement placement)
{
    edit([&](MvCalendarDocument &document) {
        MvCalendarPage page = document.pages().at(4);
        MvFotoFrame frame(sample(u"bergsee.jpg"_s), placement);
        if (placement != MvFotoFrame::Placement::Top)
            frame.setShare(0.4);
        page.setFotoFrame(frame);
        document.setPage(4, page);
    });
}

// ---- the page

void Screenshots::welcome()
{
    trigger("showWelcome");
    window()->setCurrentPage(0);
}

/// Of a calendar with photos, whose pages the pictures of the themes show.
void Screenshots::themes()
{
    useTheme(true);
    openPanel("themePanel");
}

void Screenshots::useTheme(bool hasFotos)
{
    edit([&](MvCalendarDocument &document) {
        const MvThemeRegistry &themes = MvThemeRegistry::instance();
        const MvCalendarTheme album = themes.findTheme(u"ALBUM"_s);
        document = MvThemeApplication::applied(document, album.isValid() ? album : themes.defaultTheme());
        if (!hasFotos)
            return;
        MvFotoPool pool;
        const QStringList files = m_samples.entryList({u"*.jpg"_s, u"photos/*.jpg"_s}, QDir::Files);
        int number = 0;
        for (const MvCalendarDocument::FrameId &frame : document.frames()) {
            const QString path = sample(files.at(number++ % files.size()));
            pool.add({path, {}, {}, {0.5, 0.5}});
            MvFotoElement foto(path);
            foto.setCaption(u"Ein Sommertag am See"_s);
            if (number % 7 != 0)
                document.setFoto(frame, document.foto(frame).withPictureOf(foto));
        }
        document.setFotoPool(pool);
    });
    window()->setCurrentPage(4);
}

void Screenshots::select(MvPageElement::Kind kind)
{
    const QList<MvPageElement> elements = canvas()->pageItem()->elements();
    for (int number = 0; number < elements.size(); ++number)
        if (elements.at(number).kind() == kind)
            canvas()->selection()->selectElement(number);
}

void Screenshots::fotoPanel()
{
    album();
    QTest::qWait(settling);
    select(MvPageElement::Kind::Foto);
}

void Screenshots::textPanel()
{
    album();
    QTest::qWait(settling);
    select(MvPageElement::Kind::Text);
}

/// A text and a photo that somebody has put on the page, both chosen.
void Screenshots::frames()
{
    album();
    QTest::qWait(settling);
    trigger("addTextFrame");
    trigger("addPhotoFrame");
    const int last = canvas()->selection()->element();
    canvas()->selection()->selectElements({last - 1, last});
    openPanel("framePanel");
}

void Screenshots::calendarium()
{
    album();
    QTest::qWait(settling);
    trigger("addSmallMonth");
}

void Screenshots::newPlanner()
{
    newCalendar();
    window()->findChild<QListWidget *>(u"calendarKinds"_s)->setCurrentRow(1);
}

/// Of a calendar with photos, with a line chosen.
void Screenshots::exportPdf()
{
    marks();
    QTest::qWait(longSettling);
    trigger("exportPdf");
    QTest::qWait(longSettling);
    if (auto *list = window()->findChild<QListWidget *>(u"printFindings"_s))
        list->setCurrentRow(1);
}

void Screenshots::exportSheets()
{
    exportPdf();
    constexpr int fourPages = 3;
    window()->findChild<QComboBox *>(u"exportSheets"_s)->setCurrentIndex(fourPages);
}

void Screenshots::exportPress()
{
    exportPdf();
    window()->findChild<QComboBox *>(u"exportPress"_s)->setCurrentIndex(1);
}

void Screenshots::printCheck()
{
    album();
    QTest::qWait(settling);
    trigger("printCheck");
}

void Screenshots::templates()
{
    album();
    openPanel("templatePanel");
}

void Screenshots::marks()
{
    album();
    edit([](MvCalendarDocument &document) {
        MvPageFormat format = document.format();
        format.setBleed(MvPageFormat::printShopBleed);
        format.setBinding(MvPageFormat::Binding::Top);
        document.setFormat(format);
    });
    if (!find<QAction>("printMarks")->isChecked())
        trigger("printMarks");
}

void Screenshots::fotoSelected()
{
    foto();
    QTest::qWait(settling);
    const QRectF frame = project()->document().pages().at(4).fotoFrame().rect(project()->document().format());
    QTest::mouseClick(canvas()->viewport(), Qt::LeftButton, {}, canvas()->mapFromScene(frame.center()));
}

void Screenshots::portrait()
{
    edit([](MvCalendarDocument &document) {
        MvPageFormat format = document.format();
        format.setOrientation(MvPageFormat::Orientation::Portrait);
        document.setFormat(format);
    });
    foto();
}

void Screenshots::year()
{
    edit([](MvCalendarDocument &document) {
        MvCalendariumAppearance appearance = document.appearance();
        appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"YEAR_GRID"_s));
        appearance.adoptLayoutSuggestions();
        appearance.adaptGridToLayout();
        document.setAppearance(appearance);
    });
}

void Screenshots::dayFocus()
{
    canvas()->setFocusDate(project()->document().pageDates().at(4).addDays(11));
    QTest::keyClick(canvas(), Qt::Key_Right);
}

void Screenshots::pageMenu()
{
    foto();
    QTest::qWait(settling);
    const QPoint point = pointOf(project()->document().pageDates().at(4));
    canvas()->createContextMenu(point)->popup(canvas()->viewport()->mapToGlobal(point));
}

// ---- panels

void Screenshots::colorsDown()
{
    colors();
    QTest::qWait(settling);
    find<QCheckBox>("showGridBox")->setFocus(Qt::TabFocusReason);
}

void Screenshots::colorPalette()
{
    colors();
    QTest::qWait(settling);
    auto *table = find<QTableView>("tableView");
    table->setFocus();
    table->setCurrentIndex(table->model()->index(0, 1));
    QTest::keyClick(table, Qt::Key_Space);
}

void Screenshots::colorWarning()
{
    colors();
    QTest::qWait(settling);
    QAbstractItemModel *model = find<QTableView>("tableView")->model();
    for (int row = 0; row < 3; ++row)
        model->setData(model->index(row, 2), QColor(214, 206, 190), Qt::EditRole);
}

void Screenshots::colorsMenu()
{
    colorWarning();
    const MvCalendariumColorSchema own = project()->document().appearance().colorSchema();
    MvUserColorSchemata::keep(own, u"Sand & Meer"_s);
    MvCalendariumColorSchemaRegistry::instance().setIgnoreSchema(MvCalendariumColorSchemaID(u"SLATE"_s));
    window()->setCurrentPage(5);
    QTest::qWait(settling);
    auto *button = find<QToolButton>("manageSchemata");
    button->menu()->popup(button->mapToGlobal(button->rect().bottomLeft()));
}

void Screenshots::colorsName()
{
    colorWarning();
    QTest::qWait(settling);
    find<QPushButton>("keepColors")->click();
    find<QLineEdit>("schemaName")->setText(u"Nacht"_s);
}

void Screenshots::columns()
{
    columnsEmpty();
    QTest::qWait(settling);
    find<QPushButton>("chooseColumnsLayout")->click();
}

void Screenshots::entriesEmpty()
{
    setEntries({});
    entries();
}

/// Several of three groups, chosen.
void Screenshots::entriesGrouped()
{
    MvCalendarEventList events = MvCalendarEventRegistry::instance().activeEventList();
    const QStringList names{u"Familie"_s, u"Verein"_s, u"Klasse 5b"_s};
    const QList<QColor> colors{0xC0392B, 0x1F6FB2, 0x2E7D32};
    QStringList ids;
    for (qsizetype i = 0; i < names.size(); ++i) {
        ids.append(events.groups().idOfName(names.at(i)));
        events.groups().last().color = colors.at(i);
    }
    for (qsizetype i = 0; i < events.size(); ++i)
        events[i].setGroups(i % 3 == 2 ? ids : QStringList{ids.at(i % 3)});
    MvCalendarEventRegistry::instance().setEvents(events);
    entries();
    QTest::qWait(settling);
    auto *table = find<QTreeView>("entryTable");
    for (const int row : {1, 2, 4})
        table->selectionModel()->select(table->model()->index(row, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void Screenshots::groups()
{
    entriesGrouped();
    trigger("groups");
}

void Screenshots::entriesMenu()
{
    entries();
    QTest::qWait(settling);
    auto *button = find<QPushButton>("changeEventListButton");
    button->menu()->popup(button->mapToGlobal(button->rect().bottomLeft()));
}

void Screenshots::entriesTake()
{
    entries();
    MvCalendarEventList events = MvCalendarEventRegistry::instance().activeEventList();
    events.removeFirst();
    events.first().setDateTime(events.first().dateTime().addDays(3));
    MvCalendarEventRegistry::instance().setEvents(events);
    window()->findChild<MvCalendarEventListWidget *>()->takeFromOwnEvents();
}

void Screenshots::unfitting()
{
    const QDate first = project()->document().pageDates().at(4);
    MvCalendarEventList events = MvCalendarEventRegistry::instance().activeEventList();
    for (const QString &name :
         {u"Donaudampfschifffahrtsgesellschaftskapitänstreffen"_s, u"Großtante Wilhelmine-Henriette"_s,
          u"Sommerfest der Freiwilligen Feuerwehr"_s, u"Kirchweih"_s, u"Elternabend"_s})
        events.append(MvCalendarEvent(name, first.addDays(13).startOfDay(), false, MvFoto(), QUuid::createUuid(),
                                      QDateTime::currentDateTime()));
    MvCalendarEventRegistry::instance().setEvents(events);
    edit([](MvCalendarDocument &document) {
        MvCalendariumAppearance appearance = document.appearance();
        MvCalendariumFontSettings fonts = appearance.fontSettings();
        fonts.setFontSizePercentageHolidays(-20);
        appearance.setFontSettings(fonts);
        document.setAppearance(appearance);
    });
    QTest::qWait(longSettling);
    auto *menu = find<QMenu>("unfittingMenu");
    menu->popup(window()->geometry().bottomLeft() - QPoint(-40, menu->sizeHint().height() + 40));
}

// ---- windows

void Screenshots::dayNew()
{
    MvCalendarDayEditorDialog::createSelfDeleting(canvas()->pageItem())
        ->openDayEditorSeries(MvCalendarEvent({}, project()->document().pageDates().at(4).addDays(15).startOfDay(),
                                              true, MvFoto(), QUuid::createUuid(), QDateTime::currentDateTime()));
}

void Screenshots::dayWithFoto()
{
    const MvCalendarEventList events = MvCalendarEventRegistry::instance().activeEventList();
    for (const MvCalendarEvent &event : events)
        if (event.description() == u"Oma Erika"_s)
            MvCalendarDayEditorDialog::createSelfDeleting(canvas()->pageItem())->openDayEditorSingle(event);
}

void Screenshots::bubbleNew()
{
    const QDate date = project()->document().pageDates().at(4).addDays(15);
    canvas()->entries()->openDay(date, canvas()->viewport()->mapToGlobal(pointOf(date)));
}

/// A day with several entries, one of which repeats, at the edge of a narrow window.
void Screenshots::bubbleSeveral()
{
    const QDate date = project()->document().pageDates().at(4).addDays(30);
    MvCalendarEventList events = MvCalendarEventRegistry::instance().activeEventList();
    for (const QString &name : {u"Chorprobe"_s, u"Kirchweih mit der ganzen Nachbarschaft"_s}) {
        MvCalendarEvent event(name, date.startOfDay(), false, MvFoto(), QUuid::createUuid(), {});
        MvEventRepetition repetition;
        repetition.rule.frequency = MvRecurrenceRule::Weekly;
        event.setRepetition(repetition);
        events.append(event);
    }
    MvCalendarEventRegistry::instance().setEvents(events);
    QTest::qWait(settling);
    canvas()->entries()->openDay(date, canvas()->viewport()->mapToGlobal(pointOf(date)));
}

void Screenshots::entryDrag()
{
    const QDate from = project()->document().pageDates().at(4).addDays(11);
    MvCalendarEventRegistry::instance().setEvents(
        {MvCalendarEvent(u"Chorprobe"_s, from.startOfDay(), false, MvFoto(), QUuid::createUuid(), {})});
    QTest::qWait(settling);
    const QRectF cell = canvas()->pageItem()->dateRect(from);
    for (const MvPaintRecording::Item &item : canvas()->pageItem()->recording().items(MvPaintRecording::Item::Text)) {
        if (!cell.contains(item.bounds.center()) || !u"Chorprobe"_s.contains(item.text))
            continue;
        const QPointF text = canvas()->pageItem()->mapToScene(item.bounds.center());
        canvas()->entries()->press(canvas()->mapFromScene(text));
    }
    canvas()->entries()->move(pointOf(from.addDays(9)), {});
}

void Screenshots::tableOpen()
{
    const QByteArray table = "Anlass,Wann,Ort\nSommerfest,04/05/2027,Hof\n\"Ausflug, Wandern\",09/10/2027,Alm\n"
                             "Probe,irgendwann,Saal\n";
    (new MvEntryTableDialog(table, u"Vereinstermine.csv"_s, window()))->open();
}

void Screenshots::importReport()
{
    MvEntryFileImport::Result result;
    result.report.added = 58;
    result.report.equal = 3;
    for (int line = 4; line < 40; line += 9) {
        result.report.skipped.append({line, u"Probe"_s, u"das Datum „irgendwann“ ist nicht zu lesen"_s});
        result.lines.append(u"Vereinstermine.csv: "_s + result.report.skipped.last().describe());
    }
    (new MvEntryImportReport(result, window()))->open();
}

void Screenshots::progress()
{
    auto *dialog = new MvProgressDialog(find<QAction>("exportPdf")->iconText(), u"Kalender 2027.pdf"_s, window());
    dialog->open();
    dialog->setProgress(5, 12);
}

void Screenshots::recovery()
{
    const QDateTime time(QDate(2026, 11, 3), QTime(20, 14));
    const QList<MvProjectRecovery::Entry> entries = {
        {QFileInfo(u"1.mvcalendar"_s), u"/home/sabine/Kalender/Familie 2027.mvcalendar"_s, u"Familie 2027"_s, time},
        {QFileInfo(u"2.mvcalendar"_s), {}, project()->document().title(), time.addSecs(-4000)},
    };
    auto *dialog = new MvRecoveryDialog(entries, window());
    dialog->open();
}

void Screenshots::closeQuestion()
{
    foto();
    window()->close();
}

void Screenshots::error()
{
    window()->projectFlow()->open(u"/home/sabine/Kalender/Familie 2027.mvcalendar"_s);
}

/// Part of a list, from a folder far down.
void Screenshots::entriesReplace()
{
    QByteArray list("<CalendarEvents>\n<CalendarEvent><Name>Tante Hedwig</Name><DateTime>1950-03-01T00:00:00</DateTime>"
                    "</CalendarEvent>\n");
    for (int i = 1; i <= 14; ++i)
        list += "<CalendarEvent><Name>Person " + QByteArray::number(i) +
                "</Name><DateTime>17.05.1941</DateTime></CalendarEvent>\n";
    const QDir far(QDir::homePath() + u"/Dokumente/Familie/Kalender und Geburtstage/Sicherungen_von_den_alten_Rechnern"_s);
    QDir().mkpath(far.path());
    QFile file(far.filePath(u"Geburtstage_der_ganzen_Familie_und_aller_Freunde_aus_der_alten_Liste.xml"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(list + "</CalendarEvents>\n") < 0)
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    file.close();
    MvCalendarEventFileIntake::start(file.fileName(), MvCalendarEventFileIntake::Purpose::Replace, window(), {});
}

void Screenshots::entriesClear()
{
    openPanel("entriesPanel");
    find<MvCalendarEventListWidget>(nullptr)->clearEventList();
}

void Screenshots::entriesUnreadable()
{
    setEntries({});
    setEntries(u"eintraege.xml"_s);
    QFile own(MvCalendarEventRegistry::instance().calendarEventsDir().filePath());
    if (!own.resize(own.size() / 2))
        qFatal("%s cannot be cut", qPrintable(own.fileName()));
    MvCalendarEventRegistry::instance().load();
}

void Screenshots::entriesVersions()
{
    entriesUnreadable();
    QTest::qWait(settling);
    find<QPushButton>("restoreButton")->click();
}

void Screenshots::entriesUnsaved()
{
    const QString own = MvCalendarEventRegistry::instance().calendarEventsDir().filePath();
    QFile::remove(own);
    QDir().mkdir(own); // in the way
    setEntries({});
}

void Screenshots::entriesLeave()
{
    entriesUnsaved();
    QTest::qWait(settling);
    find<QPushButton>("laterButton")->click();
    window()->close();
}

void Screenshots::preview()
{
    foto();
    trigger("print");
    QTest::qWait(settling);
    if (auto *preview = find<QPushButton>("previewButton"))
        preview->click();
}

} // namespace

int main(int argc, char **argv)
{
    MvStudioApplication::setUpProcess(u"1.0"_s);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == u"--list"_s) {
        for (const Screenshots::State &state : Screenshots::states())
            std::puts(state.name);
        return 0;
    }
    if (arguments.size() < 4) {
        std::fputs("usage: make_screenshots FOLDER THEME LANGUAGE SAMPLES [STATE...]\n", stderr);
        return 2;
    }
    MvStudioApplication studio(MvStudioOptions::parse(
        {u"mvcalendar-studio"_s, u"--theme"_s, arguments.at(1), u"--language"_s, arguments.at(2)}));
    studio.start();
    Screenshots screenshots(&studio, QDir(arguments.at(0)), QDir(arguments.at(3)));
    const QStringList wanted = arguments.mid(4);
    for (const Screenshots::State &state : Screenshots::states())
        if (wanted.isEmpty() || wanted.contains(QLatin1StringView(state.name)))
            screenshots.take(state);
    return 0;
}
