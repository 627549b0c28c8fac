// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvStorageTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvExportTarget.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectPack.h"
#include "MvProject/MvProjectRecovery.h"
#include "MvProjectFixture.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QPainter>

#include <algorithm>
#include <unistd.h>

using namespace Qt::StringLiterals;
using MvTestFiles::contentOf;

namespace {

const auto nameOf = MvStorageTest::nameOf;
const auto stateOf = MvStorageTest::stateOf;

// ---- entries

constexpr int companions = 20; // further entries, to make the file larger

MvCalendarEventList entries(int state)
{
    MvCalendarEventList events;
    for (int i = 0; i <= companions; ++i)
        events.append(MvEntries::entry(i == 0 ? nameOf(state) : u"Gast %1/%2"_s.arg(i).arg(state), {1960 + i, 5, 17}));
    return events;
}

/// The state of a file of entries whose other entries are there and of the same state.
int stateOfEntries(const QString &path)
{
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(QFileInfo(path));
    if (content.isMissing)
        return 0;
    if (!content.isRead() || !content.isComplete || content.events.size() != companions + 1)
        return -1;
    const int state = stateOf(content.events.first().description());
    const QString suffix = u'/' + QString::number(state);
    const bool areOfOneState =
        std::all_of(content.events.begin() + 1, content.events.end(),
                    [&suffix](const MvCalendarEvent &event) { return event.description().endsWith(suffix); });
    return areOfOneState ? state : -1;
}

QString ownList(const QDir &disk)
{
    return disk.filePath(u"data/calendarEvents.xml"_s);
}

/// What the person is told about saving.
QString toldProblem()
{
    const MvCalendarEventStore::Problem problem = MvCalendarEventRegistry::instance().userFile().problem();
    using Problem = MvCalendarEventStore::Problem;
    return problem.kind == Problem::NotSaved || problem.kind == Problem::Busy ? problem.text : QString();
}

QString storeEntries(const QDir &, int state)
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.setEvents(entries(state));
    return toldProblem();
}

QString exportList(const QDir &disk, int state)
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.beginChanges(); // the list in memory alone
    registry.setEvents(entries(state));
    registry.saveAs(QFileInfo(disk.filePath(u"Liste.xml"_s)));
    return registry.lastSaveError();
}

const QByteArray damaged = "<CalendarEvents><CalendarEvent><Name>Oma</Name>";

void damageList(const QDir &disk, int)
{
    QFile file(ownList(disk));
    if (file.open(QIODevice::WriteOnly))
        file.write(damaged);
    for (const QFileInfo &aside : QDir(disk.filePath(u"data"_s)).entryInfoList({u"*.unlesbar-*"_s}))
        QFile::remove(aside.filePath());
}

/// The damaged list lies where it lay, or aside and the new one in its place.
int stateAfterDamage(const QDir &disk)
{
    const int state = contentOf(ownList(disk)) == damaged ? 0 : stateOfEntries(ownList(disk));
    const QFileInfoList asides = QDir(disk.filePath(u"data"_s)).entryInfoList({u"*.unlesbar-*"_s});
    const bool isKept = state == 0 || std::any_of(asides.begin(), asides.end(), [](const QFileInfo &aside) {
                            return contentOf(aside.filePath()) == damaged;
                        });
    return isKept ? state : -1;
}

/// A photo that somebody has chosen: it is copied, then the entry saved.
QString storeFoto(const QDir &disk, int state)
{
    const QString source = QFileInfo(disk.path()).absolutePath() + u"/photo-%1.png"_s.arg(state);
    MvCalendarEvent entry = MvEntries::entry(nameOf(state), {1960, 5, 17});
    if (const MvOutcome taken = entry.takeFoto(MvFoto(QFileInfo(source))); !taken.isOk())
        return taken.error;
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.setEvents({entry});
    return toldProblem();
}

void makeFoto(const QDir &disk, int state)
{
    QImage image(100 + state, 80, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.save(QFileInfo(disk.path()).absolutePath() + u"/photo-%1.png"_s.arg(state));
}

int stateOfFoto(const QDir &disk)
{
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(QFileInfo(ownList(disk)));
    if (content.isMissing)
        return 0;
    if (!content.isComplete || content.events.size() != 1)
        return -1;
    const int state = stateOf(content.events.first().description());
    return QImage(content.events.first().imagePath().filePath()).width() == 100 + state ? state : -1;
}

// ---- colours, projects

QString storeColors(const QDir &, int state)
{
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    const MvCalendariumColorSchemaList before = registry.allSchemata();
    MvCalendariumColorSchema schema = before.last(); // a shipped one
    for (const MvCalendariumColorSchema &known : before) {
        if (registry.isUserSchema(known))
            registry.remove(known);
    }
    MvBorderConfig grid = MvCalendariumColorSchema::createDefaultBorder();
    grid.setColor(QColor(state, 1, 2));
    grid.setIsEnabled(true);
    schema.setGridConfig(grid);
    registry.recordSchemaUniquely(schema);
    return registry.saveSystemUserSchemata() ? QString() : u"not saved"_s;
}

int stateOfColors(const QDir &)
{
    if (!MvCalendariumColorSchemaRegistry::systemUserSchemaFile().exists())
        return 0;
    const auto registry = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    registry->read(MvCalendariumColorSchemaRegistry::systemUserSchemaFile(),
                   MvCalendariumColorSchemaVisibility(SCHEMA_VISIBILITY_OFFERED));
    const MvCalendariumColorSchemaList found = registry->allSchemata();
    return found.size() == 1 ? found.first().gridConfig().color().red() : -1;
}

/// The state of a calendar whose photos, frames and templates are all of that state.
int stateOfAlbum(const QFileInfo &file)
{
    const int state = MvStorageTest::stateOfProject(file);
    return state <= 0 || MvProjectFile::read(file).document == MvProjectFixture::album(state) ? state : -1;
}

QString projectFile(const QDir &disk)
{
    return disk.filePath(u"Kalender.mvcalendar"_s);
}

QString storeProject(const QDir &disk, int state)
{
    MvProject project;
    project.newProject(MvProjectFixture::album(state));
    return project.saveAs(QFileInfo(projectFile(disk))).error;
}

int stateOfProject(const QDir &disk)
{
    return stateOfAlbum(QFileInfo(projectFile(disk)));
}

/// The program that stores goes without saving the project, as if it had been killed.
QString autosave(const QDir &, int state)
{
    static MvProject project;
    static MvProjectAutosave *autosave = new MvProjectAutosave(&project);
    QString error;
    QEventLoop loop;
    QObject::connect(autosave, &MvProjectAutosave::written, &loop, &QEventLoop::quit);
    QObject::connect(autosave, &MvProjectAutosave::failed, &loop, [&](const QString &text) {
        error = text;
        loop.quit();
    });
    autosave->setDelay(0);
    project.change(MvProjectFixture::album(state), u"Fotos verteilen"_s);
    loop.exec();
    return error;
}

int stateOfAutosave(const QDir &)
{
    const QFileInfoList files = QDir(MvProjectAutosave::folder()).entryInfoList({u"*.mvcalendar"_s}, QDir::Files);
    int state = 0;
    for (const QFileInfo &file : files) {
        const int found = stateOfAlbum(file);
        state = state < 0 || found < 0 ? -1 : std::max(state, found);
    }
    return state;
}

void discardAutosaves(const QDir &, int)
{
    for (const MvProjectRecovery::Entry &entry : MvProjectRecovery::found())
        MvProjectRecovery::discard(entry);
}

void leaveRecovery(const QDir &disk, int state)
{
    discardAutosaves(disk, state);
    const QDir folder(MvProjectAutosave::folder());
    MvSafeFileWriter::write(QFileInfo(folder.filePath(u"found-%1.mvcalendar"_s.arg(state))),
                            MvProjectFile::toBytes(MvProjectFixture::album(state), folder, projectFile(disk)),
                            MvSafeFileWriter::Backups::None);
}

QString recover(const QDir &, int)
{
    const QList<MvProjectRecovery::Entry> found = MvProjectRecovery::found();
    if (found.isEmpty())
        return u"nothing found"_s;
    auto *project = new MvProject; // stays: a program that ends gives up what it has not saved
    auto autosave = std::make_unique<MvProjectAutosave>(project);
    const MvOutcome opened = MvProjectRecovery::open(found.first(), *project);
    const QString error = opened.isOk() ? project->save().error : opened.error;
    if (error.isEmpty())
        autosave.reset(); // once the state that was found is gone: its room must not come free at some later time
    else
        static_cast<void>(autosave.release());
    return error;
}

/// What was found is in the project, or lies there still.
int stateOfRecovery(const QDir &disk)
{
    const int saved = stateOfProject(disk);
    const int left = stateOfAutosave(disk);
    return left != 0 ? left : saved;
}

// ---- exports

MvPageSource pages(int state)
{
    MvPageSource source;
    source.format = MvPageFormat::fromName(u"A6"_s);
    source.pages = {QDate(2027, 1, 1)};
    source.title = nameOf(state);
    source.content = [](int) { return MvPageContent(); };
    source.paint = [state](QPainter &painter, int) { painter.fillRect(0, 0, 100 + state, 300, Qt::red); };
    return source;
}

std::function<QString(const QDir &, int)> exportTo(const QString &name, const MvSheetSettings &sheets = {})
{
    return [name, sheets](const QDir &disk, int state) {
        MvExportTarget target(disk.filePath(name));
        target.setSheets(sheets);
        return target.write(pages(state), 30 + state).error;
    };
}

/// With a photo in inks, and the profile, which is large.
std::function<QString(const QDir &, int)> exportForPress()
{
    MvPressSettings press;
    press.profile = MvPressProfile::load(u"fogra39"_s).profile; // checked once
    return [press](const QDir &disk, int state) {
        MvPageSource source = pages(state);
        source.paint = [paint = source.paint](QPainter &painter, int page) {
            QImage foto(60, 40, QImage::Format_RGB32);
            foto.fill(Qt::darkGreen);
            foto.setPixel(7, 7, 0x808020);
            paint(painter, page);
            painter.drawImage(QRect(100, 400, 600, 400), foto);
        };
        MvExportTarget target(disk.filePath(u"Kalender.pdf"_s));
        target.setPress(press);
        return press.isForPress() ? target.write(source, 300).error : u"no profile"_s;
    };
}

std::function<int(const QDir &)> stateByTitle(const QString &name, const QByteArray &end)
{
    return [name, end](const QDir &disk) { return MvStorageTest::stateByTitle(disk.filePath(name), end); };
}

int stateOfPicture(const QString &path)
{
    const QImage image(path);
    if (!QFileInfo::exists(path))
        return 0;
    return image.isNull() ? -1 : qRound(image.dotsPerMeterX() * 0.0254) - 30;
}

int stateOfPng(const QDir &disk)
{
    return stateOfPicture(disk.filePath(u"Kalender.png"_s));
}

QString exportSet(const QDir &disk, int state)
{
    MvPageSource source = pages(state);
    source.pages = {QDate(2027, 1, 1), QDate(2027, 2, 1), QDate(2027, 3, 1)};
    return MvExportTarget(disk.filePath(u"Kalender-%m.png"_s)).write(source, 30 + state).error;
}

/// That of the last of its files; those before it are of the same state, or newer from the first one on.
int stateOfSet(const QDir &disk)
{
    QList<int> found;
    for (const QString &month : {u"01"_s, u"02"_s, u"03"_s})
        found.append(stateOfPicture(disk.filePath(u"Kalender-%1.png"_s.arg(month))));
    const bool isInOrder = found[1] == found[0] || found[1] == found[2];
    return found.contains(-1) || !isInOrder ? -1 : found[2];
}

// ---- a file with a second name, which is written where it lies

QByteArray filling(int state)
{
    return QByteArray(4000 + state * 7919 % 9000, char('A' + state));
}

QString storeInPlace(const QDir &disk, int state)
{
    return MvSafeFileWriter::write(QFileInfo(disk.filePath(u"Kalender.pdf"_s)), filling(state)).error;
}

void makeSecondName(const QDir &disk, int)
{
    const QByteArray name = QFile::encodeName(disk.filePath(u"Kalender.pdf"_s));
    [[maybe_unused]] const int ignored = ::link(name.constData(), (name + "-2").constData());
}

int stateInPlace(const QDir &disk)
{
    MvSafeFileWriter::finishInterrupted();
    const QByteArray content = contentOf(disk.filePath(u"Kalender.pdf"_s));
    if (QFileInfo::exists(disk.filePath(u"Kalender.pdf-2"_s)) &&
        contentOf(disk.filePath(u"Kalender.pdf-2"_s)) != content)
        return -1;
    const int state = content.isEmpty() ? 0 : content.front() - 'A';
    return state == 0 || content == filling(state) ? state : -1;
}

QString packZip(const QDir &disk, int state)
{
    return MvProjectPack(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, state % 12 + 1), nameOf(state))
        .writeZip(disk.filePath(u"Kalender.zip"_s))
        .error;
}

QString packFolder(const QDir &disk, int state)
{
    return MvProjectPack(MvProjectFixture::album(state), u"k"_s).writeFolder(disk.filePath(u"Kalender"_s)).error;
}

void removeFolder(const QDir &disk, int) // a pack never replaces one
{
    QDir(disk.filePath(u"Kalender"_s)).removeRecursively();
}

int stateOfFolder(const QDir &disk)
{
    if (!QFileInfo::exists(disk.filePath(u"Kalender"_s)))
        return 0;
    return stateOf(MvProjectFile::read(QFileInfo(disk.filePath(u"Kalender/k.mvcalendar"_s))).document.title());
}

/// The name of its folder, if its end is there.
int stateOfZip(const QDir &disk)
{
    constexpr int headSize = 30; // before the first name
    constexpr int endSize = 22;
    const QByteArray content = contentOf(disk.filePath(u"Kalender.zip"_s));
    if (content.isEmpty())
        return 0;
    const QByteArray name = content.mid(headSize, content.indexOf('/', headSize) - headSize);
    return content.last(endSize).startsWith("PK\5\6") ? stateOf(QString::fromUtf8(name)) : -1;
}

QList<MvStorageOperation> operations()
{
    using Application = MvStorageOperation::Application;
    QList<MvStorageOperation> all{
        {"entries", Application::Core, storeEntries, [](const QDir &disk) { return stateOfEntries(ownList(disk)); }},
        {"list export", Application::Core, exportList,
         [](const QDir &disk) { return stateOfEntries(disk.filePath(u"Liste.xml"_s)); }},
        {"list in place of a damaged one", Application::Core, storeEntries, stateAfterDamage, damageList},
        {"photo of an entry", Application::Core, storeFoto, stateOfFoto, makeFoto},
        {"colour schemas", Application::Gui, storeColors, stateOfColors},
        {"project", Application::Gui, storeProject, stateOfProject},
        {"autosave", Application::Gui, autosave, stateOfAutosave, discardAutosaves},
        {"recovery", Application::Gui, recover, stateOfRecovery, leaveRecovery},
        {"PDF", Application::Gui, exportTo(u"Kalender.pdf"_s), stateByTitle(u"Kalender.pdf"_s, "%%EOF")},
        {"PDF of tiles", Application::Gui,
         exportTo(u"Kalender.pdf"_s, {MvSheetSettings::Kind::Tiles, {1000.0, 1000.0}}),
         stateByTitle(u"Kalender.pdf"_s, "%%EOF")},
        {"PDF of several on a sheet", Application::Gui, exportTo(u"Kalender.pdf"_s, {MvSheetSettings::Kind::Several}),
         stateByTitle(u"Kalender.pdf"_s, "%%EOF")},
        {"PNG", Application::Gui, exportTo(u"Kalender.png"_s), stateOfPng},
        {"PNG of each page", Application::Gui, exportSet, stateOfSet},
        {"HTML", Application::Gui, exportTo(u"Kalender.html"_s), stateByTitle(u"Kalender.html"_s, "</html>")},
        {"SVG", Application::Gui, exportTo(u"Kalender.svg"_s), stateByTitle(u"Kalender.svg"_s, "</svg>")},
        {"packed folder", Application::Gui, packFolder, stateOfFolder, removeFolder, true},
        {"packed archive", Application::Gui, packZip, stateOfZip, {}, true},
        {"in place", Application::Core, storeInPlace, stateInPlace, makeSecondName},
    };
    if (qEnvironmentVariableIsSet("MV_NIGHTLY")) // hundreds of calls, each after some work
        all.append({"PDF for a press", Application::Gui, exportForPress(), stateByTitle(u"Kalender.pdf"_s, "%%EOF")});
    return all;
}

} // namespace

int main(int argc, char **argv)
{
    return MvStorageTest::run(argc, argv, operations(), {.kills = 200, .nightlyKills = 10000});
}
