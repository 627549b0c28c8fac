// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvStorageTest.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvProjectFixture.h"
#include "MvStudioApplication.h"
#include "flows/MvProjectFlow.h"
#include "window/MvStudioWindow.h"

#include <QtWidgets/QtWidgets>

using namespace Qt::StringLiterals;

// The same from the window: what could not be stored is said where the person looks, not only to whom calls.

namespace {

const auto nameOf = MvStorageTest::nameOf;
const auto stateOf = MvStorageTest::stateOf;

MvStudioApplication &studio()
{
    static MvStudioApplication *const studio = [] {
        auto *made = new MvStudioApplication(MvStudioOptions::parse({u"mvcalendar-studio"_s}));
        made->start();
        made->autosave()->setDelay(1000000);
        made->project()->newProject(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 1));
        QCoreApplication::processEvents();
        return made;
    }();
    return *studio;
}

QStringList visibleTexts()
{
    QStringList texts;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        if (const auto *box = qobject_cast<const QMessageBox *>(widget))
            texts.append(box->text() + u' ' + box->informativeText());
        else if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts.append(label->text());
    }
    return texts;
}

/// Does something and waits until it is done, or a message of a failure comes up; that.
QString toldAfter(const std::function<void()> &act, const std::function<bool()> &isDone)
{
    static const QRegularExpression failure(
        u"nicht gespeichert|nicht exportiert|misslungen|nicht .*(schreiben|sichern)"_s);
    const QStringList before = visibleTexts();
    act();
    for (const QDeadlineTimer deadline(10000); !deadline.hasExpired();) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
        const QStringList texts = visibleTexts();
        for (const QString &text : texts)
            if (!before.contains(text) && failure.match(text).hasMatch())
                return text;
        if (isDone())
            break;
    }
    return {}; // done, or not done and nothing said: the disk shows which
}

void changeTitle(int state)
{
    MvCalendarDocument document = studio().project()->document();
    document.setTitle(nameOf(state));
    studio().project()->change(document, u"Titel ändern"_s);
}

// ---- what a person stores

QString storeEntry(const QDir &, int state)
{
    studio();
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    const MvCalendarEvent before = registry.activeEventList().value(0);
    const MvCalendarEvent entry = MvEntries::entry(nameOf(state), {1960, 5, 17});
    return toldAfter([&] { MvUndoController::instance().push(new MvUndoCommandCalendarEvent(before, entry, nullptr)); },
                     [&registry] { return !registry.userFile().hasUnsavedChanges(); });
}

int stateOfEntry(const QDir &disk)
{
    const MvCalendarEventFile::Content content =
        MvCalendarEventFile::read(QFileInfo(disk.filePath(u"data/calendarEvents.xml"_s)));
    if (content.isMissing)
        return 0;
    return content.isComplete && content.events.size() == 1 ? stateOf(content.events.first().description()) : -1;
}

QString storeProject(const QDir &disk, int state)
{
    MvProject *project = studio().project();
    changeTitle(state);
    MvCalendarEventRegistry::instance().setEvents({MvEntries::entry(nameOf(state), {1960, 5, 17})}); // saved with it
    if (project->fileInfo().filePath().isEmpty())
        return project->saveAs(QFileInfo(disk.filePath(u"Kalender.mvcalendar"_s))).error;
    return toldAfter([] { studio().window()->projectFlow()->save(); }, [project] { return !project->isModified(); });
}

/// Pages and entries are of one state.
int stateOfProject(const QDir &disk)
{
    const QFileInfo file(disk.filePath(u"Kalender.mvcalendar"_s));
    const int state = MvStorageTest::stateOfProject(file);
    if (state <= 0)
        return state;
    const MvProjectFile::Content content = MvProjectFile::read(file);
    const bool isOne = content.entries && content.entries->events.size() == 1;
    return isOne && stateOf(content.entries->events.first().description()) == state ? state : -1;
}

QString autosave(const QDir &, int state)
{
    studio().autosave()->setDelay(0);
    bool isWritten = false;
    QObject context;
    QObject::connect(studio().autosave(), &MvProjectAutosave::written, &context, [&isWritten] { isWritten = true; });
    return toldAfter([state] { changeTitle(state); }, [&isWritten] { return isWritten; });
}

void clearAutosaves(const QDir &, int)
{
    const QFileInfoList files = QDir(MvProjectAutosave::folder()).entryInfoList({u"*.mvcalendar"_s}, QDir::Files);
    for (const QFileInfo &file : files)
        if (file.absoluteFilePath() != studio().autosave()->file().absoluteFilePath())
            QFile::remove(file.absoluteFilePath());
}

int stateOfAutosave(const QDir &)
{
    const QFileInfoList files = QDir(MvProjectAutosave::folder()).entryInfoList({u"*.mvcalendar"_s}, QDir::Files);
    return files.isEmpty() ? 0 : MvStorageTest::stateOfProject(files.first());
}

template <class Widget>
Widget *shown(const char *name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        if (auto *found = qobject_cast<Widget *>(widget);
            found && found->isVisible() && found->objectName() == QLatin1StringView(name))
            return found;
    return nullptr;
}

QString exportPdf(const QDir &disk, int state)
{
    changeTitle(state);
    const QString told = toldAfter(
        [&disk] {
            studio().window()->findChild<QAction *>(u"exportPdf"_s)->trigger();
            QCoreApplication::processEvents();
            shown<QLineEdit>("exportTarget")->setText(disk.filePath(u"Kalender.pdf"_s));
            shown<QPushButton>("exportButton")->click();
        },
        [] { return shown<QMessageBox>("informationMessage") != nullptr; });
    if (auto *box = shown<QMessageBox>("informationMessage"))
        box->close();
    QCoreApplication::processEvents();
    return told;
}

QList<MvStorageOperation> operations()
{
    using Application = MvStorageOperation::Application;
    return {
        {"entry", Application::Widgets, storeEntry, stateOfEntry},
        {"project", Application::Widgets, storeProject, stateOfProject},
        {"autosave", Application::Widgets, autosave, stateOfAutosave, clearAutosaves},
        {"PDF", Application::Widgets, exportPdf,
         [](const QDir &disk) { return MvStorageTest::stateByTitle(disk.filePath(u"Kalender.pdf"_s), "%%EOF"); }},
    };
}

} // namespace

int main(int argc, char **argv)
{
    return MvStorageTest::run(argc, argv, operations(),
                              {.kills = 12, .nightlyKills = 400, .stride = 9, .diskSizes = 2});
}
