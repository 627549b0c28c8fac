// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvFreshFolderTest.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectRecovery.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;
using MvEntries::names;
using Reach = MvCalendarEventStep::Reach;

/// Each calendar with its own list of entries, and the user's list beside them.
class tst_MvProjectEntries : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsGoTheirOwnWays_data();
    void listsGoTheirOwnWays();
    void fileGivesBackWhatItTook();
    void filesThatAreNotWhole_data();
    void filesThatAreNotWhole();
    void fotosGoWithTheCalendar();
    void stepsKeepTheirFotos();
    void fotosNobodyNeedsGo();
    void calendarsWithoutAListTakeTheUsers();
    void unreadableListsAreNotReplacedByNothing();
    void nobodysChangesAreLost();
    void unsavedEntriesAreRecovered();

private:
    static MvCalendarEventRegistry &registry() { return MvCalendarEventRegistry::instance(); }
    QFileInfo file(const QString &name = u"k.mvcalendar"_s) const { return QFileInfo(path(name)); }
    static MvCalendarDocument document() { return MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 1); }
    static MvCalendarEvent added(const QString &name)
    {
        const MvCalendarEvent event = entry(name, {2000, 1, 9});
        push({}, event);
        return event;
    }
    static void push(const MvCalendarEvent &before, const MvCalendarEvent &after, Reach reach = Reach::AsSet)
    {
        MvUndoController::instance().push(new MvCalendarEventStep(before, after, MvSession::defaultSession(), reach));
    }
    static MvCalendarEventList inFile(const QFileInfo &file)
    {
        const MvProjectFile::Content content = MvProjectFile::read(file);
        return content.entries ? content.entries->events : MvCalendarEventList();
    }
    MvCalendarEventList usersFile() const
    {
        return MvCalendarEventFile::read(QFileInfo(path(u"daten/calendarEvents.xml"_s))).events;
    }

    std::unique_ptr<MvProject> m_project;
};

void tst_MvProjectEntries::init()
{
    MvFreshFolderTest::init();
    MvDirectoryConfig::instance().setProgramDataDir(path(u"daten"_s));
    registry().setEvents({});
    m_project = std::make_unique<MvProject>();
    m_project->keepEntries();
    m_project->newProject(document());
}

void tst_MvProjectEntries::cleanup()
{
    m_project.reset();
    QVERIFY(registry().activeModelId() == DEFAULT_PROJECT_ID);
}

namespace {

/// What the lists should be: the fields of each entry by its uuid.
class Model
{
public:
    using Fields = QStringList; // name, last day, groups; empty: it is not there
    using List = QMap<QUuid, Fields>;
    struct Change
    {
        QUuid id;
        Fields before;
        Fields after;
    };
    struct Step
    {
        QList<Change> active;
        QList<Change> own;
    };

    static Fields fieldsOf(const MvCalendarEvent &event)
    {
        return {event.description(), event.endDate().toString(Qt::ISODate), event.groups().join(u',')};
    }

    static List listOf(const MvCalendarEventList &events)
    {
        List list;
        for (const MvCalendarEvent &event : events) {
            list.insert(event.uuid(), fieldsOf(event));
            for (const QString &id : event.groups())
                if (!events.groups().find(id))
                    list[event.uuid()].append(u"no group "_s + id);
        }
        return list;
    }

    /// What is there keeps the fields that are not as they were before.
    static Fields stepFrom(const Fields &before, const Fields &after, const Fields &there)
    {
        Fields fields;
        for (qsizetype i = 0; i < there.size(); ++i)
            fields.append(there.at(i) == before.at(i) ? after.at(i) : there.at(i));
        return fields;
    }

    Step stepOf(const QUuid &id, const Fields &after, bool reaches) const
    {
        Step step{{{id, active.value(id), after}}, {}};
        const Fields before = active.value(id);
        const Fields there = own.value(id);
        if (reaches && (before.isEmpty() || (there.isEmpty() && !after.isEmpty())))
            step.own.append({id, {}, after});
        else if (reaches && !there.isEmpty())
            step.own.append({id, there, after.isEmpty() ? after : stepFrom(before, after, there)});
        return step;
    }

    void apply(const Step &step, bool isUndone)
    {
        const auto takeOver = [isUndone](List &list, const QList<Change> &changes) {
            const List before = list;
            for (const Change &change : changes) {
                const Fields fields = isUndone ? change.before : change.after;
                fields.isEmpty() ? void(list.remove(change.id)) : void(list.insert(change.id, fields));
            }
            return list != before;
        };
        takeOver(active, step.active);
        if (takeOver(own, step.own)) // its file is written: what others wrote comes in
            own.insert(std::exchange(othersInOwn, {}));
    }

    List active;
    List own;
    List othersInFile; // what others have added to the open project's file, not yet read here
    List othersInOwn;  // the same of the user's file
};

} // namespace

void tst_MvProjectEntries::listsGoTheirOwnWays_data()
{
    const MvRows<int> row; // seed
    const int rows = qEnvironmentVariableIsSet("MV_NIGHTLY") ? 400 : 4;
    for (int seed = 1; seed <= rows; ++seed)
        row(QString::asprintf("seed %d", seed), seed);
}

/// Random steps of a person with three calendars, and of others, against the model.
void tst_MvProjectEntries::listsGoTheirOwnWays()
{
    const auto [seed] = MvRows<int>::current();
    QRandomGenerator random{quint32(seed)};
    Model model;
    QList<Model::Step> done;
    QList<Model::Step> undone;
    int open = 0;
    for (int number = 0; number < 3; ++number)
        QVERIFY(MvProjectFile::write(document(), MvCalendarEventList(), file(QString::number(number))).isOk());
    QVERIFY(m_project->open(file(u"0"_s)).isOk());
    const auto name = [&random] { return u"E%1"_s.arg(random.bounded(1000000)); };
    const auto vary = [&](MvCalendarEvent &event) {
        const MvEventGroup group = MvEventGroup::named(u"Gruppe %1"_s.arg(random.bounded(4)));
        MvEventGroupList groups = registry().activeEventList().groups();
        switch (random.bounded(3)) {
        case 0:
            event.setEventName(name());
            break;
        case 1:
            event.setEndDate(event.dateTime().date().addDays(random.bounded(5)));
            break;
        default:
            groups.idOfName(group.name);
            registry().setGroups(groups);
            event.setGroups({group.id});
        }
    };
    const auto push = [&](const Model::Step &step) {
        model.apply(step, false);
        done.append(step);
        undone.clear();
    };
    for (int turn = 0; turn < 80; ++turn) {
        const MvCalendarEventList events = registry().activeEventList();
        const MvCalendarEvent any = events.value(random.bounded(int(events.size()) + 1));
        switch (random.bounded(12)) {
        case 0:
        case 1: {
            MvCalendarEvent event = entry(name(), {2000, 1, 1 + random.bounded(28)});
            vary(event);
            push(model.stepOf(event.uuid(), Model::fieldsOf(event), m_project->doEntriesReachOwn()));
            tst_MvProjectEntries::push({}, event);
            break;
        }
        case 2:
        case 3: {
            if (!any.isValid())
                break;
            MvCalendarEvent after = any;
            vary(after);
            const bool isRemoved = random.bounded(3) == 0;
            if (after == any && !isRemoved)
                break;
            push(model.stepOf(any.uuid(), isRemoved ? Model::Fields() : Model::fieldsOf(after),
                              m_project->doEntriesReachOwn()));
            tst_MvProjectEntries::push(any, isRemoved ? MvCalendarEvent() : after);
            break;
        }
        case 4:
        case 5:
            if (done.isEmpty())
                break;
            model.apply(done.last(), true);
            undone.append(done.takeLast());
            MvUndoController::instance().undo();
            break;
        case 6:
            if (undone.isEmpty())
                break;
            model.apply(undone.last(), false);
            done.append(undone.takeLast());
            MvUndoController::instance().redo();
            break;
        case 7:
            m_project->setEntriesReachOwn(!m_project->doEntriesReachOwn());
            break;
        case 8: // the entries that others have added come in with saving
            QCOMPARE(m_project->save().error, QString());
            model.active.insert(std::exchange(model.othersInFile, {}));
            break;
        case 9: {
            const int other = random.bounded(3);
            MvCalendarEventList list = inFile(file(QString::number(other)));
            list.append(entry(name(), {2000, 2, 2}));
            list.last().setGroups({list.groups().idOfName(u"Gruppe anderer"_s)});
            QVERIFY(MvProjectFile::write(document(), list, file(QString::number(other))).isOk());
            if (other == open)
                model.othersInFile.insert(list.last().uuid(), Model::listOf(list).value(list.last().uuid()));
            break;
        }
        case 10: {
            MvCalendarEventList list = usersFile();
            list.append(entry(name(), {2000, 3, 3}));
            QVERIFY(MvTestFiles::write(path(u"daten/calendarEvents.xml"_s), MvCalendarEventFile::toBytes(list)));
            model.othersInOwn.insert(list.last().uuid(), Model::fieldsOf(list.last()));
            break;
        }
        default: // another calendar, or a new one
            open = random.bounded(3);
            model.active = Model::listOf(inFile(file(QString::number(open))));
            model.othersInFile.clear();
            QVERIFY(m_project->open(file(QString::number(open))).isOk());
            if (random.bounded(4) == 0) {
                m_project->newProject(document());
                model.active = model.own;
                QCOMPARE(m_project->saveAs(file(QString::number(open))).error, QString());
            }
            done.clear();
            undone.clear();
        }
        QCOMPARE(Model::listOf(registry().activeEventList()), model.active);
        QCOMPARE(Model::listOf(registry().ownEvents()), model.own);
    }
    QCOMPARE(m_project->save().error, QString());
    model.active.insert(model.othersInFile);
    QCOMPARE(Model::listOf(inFile(file(QString::number(open)))), model.active);
    model.own.insert(model.othersInOwn);
    QCOMPARE(Model::listOf(usersFile()), model.own);
}

void tst_MvProjectEntries::fileGivesBackWhatItTook()
{
    MvCalendarEventList list{entry(u"Oma & <Opa>"_s, {1941, 1, 9}), entry(u"  "_s, {1604, 2, 29}),
                             entry(u"zwei\nZeilen ]]>"_s, {1950, 12, 31}, {}, false)};
    QVERIFY(MvTestFiles::writeFoto(path(u"eintraege/o & o.png"_s)));
    list[0].relocateFoto(MvFoto(file(u"eintraege/o & o.png"_s)));
    list[2].relocateFoto(MvFoto(file(u"eintraege/fehlt.png"_s)));
    list[0].setGroups({list.groups().idOfName(u"Familie"_s)});
    QVERIFY(MvProjectFile::write(document(), list, file()).isOk());
    const QByteArray written = MvProjectFile::toBytes(document(), m_folder->path(), {}, {}, list);
    QVERIFY(!written.contains(m_folder->path().toUtf8()) && written.contains(" version=\"2\""));
    const MvProjectFile::Content content = MvProjectFile::read(file());
    QVERIFY2(content.error.isEmpty() && content.notes.isEmpty(), qPrintable(content.error));
    QVERIFY(content.entries && content.entries->isComplete);
    QCOMPARE(content.entries->events, list);
    QVERIFY(content.entries->events.groups() == list.groups());
    QVERIFY(content.document == document());
    QCOMPARE(MvProjectFile::toBytes(document(), m_folder->path(), {}, {}, content.entries->events), written);

    MvCalendarEventList many; // of more elements than a document in memory may have
    for (int number = 0; number < 130'000; ++number)
        many.append(entry(u"Person %1"_s.arg(number), {1950, 1, 1}));
    QCOMPARE(MvProjectFile::write(document(), many, file()).error, QString());
    QCOMPARE(MvProjectFile::read(file()).entries->events.size(), many.size());

    QVERIFY(MvProjectFile::write(document(), MvCalendarEventList(), file()).isOk()); // none of its own is not no list
    registry().setOwnEvents({entry(u"Meins"_s, {2000, 1, 1})});
    QVERIFY(m_project->open(file()).isOk());
    QVERIFY(registry().activeEventList().isEmpty());
}

void tst_MvProjectEntries::filesThatAreNotWhole_data()
{
    const MvRows<QByteArray, QByteArray, QString, QString> row; // before, after, told, shown
    row("cut", "</CalendarEvents>\n</calendarproject>\n", {}, u"k.mvcalendar:"_s, u"Vorher"_s);
    row("no date", "<DateTime>1956-01-10T00:00:00</DateTime>", {}, u"Zeile %1, „A“: das Datum fehlt"_s, u"B"_s);
    row("not well-formed", "<Name>A", "<Name><A", u"k.mvcalendar:%2:"_s, u"Vorher"_s);
    row("a list as others write it", "<CalendarEvents>", "<CalendarEvents a='1'>", {}, u"A B"_s);
    row("in a comment", "<CalendarEvents>", "<!-- <CalendarEvents>", u"k.mvcalendar:"_s, u"Vorher"_s);
    row("something else", "<CalendarEvent>\n    <Name>A", "<Termin/><CalendarEvent><Name>A", u"„Termin“"_s, u"A B"_s);
    row("a photo of somebody else's", "<Image/>", "<Image>/etc/passwd</Image>", {}, u"A B"_s);
}

void tst_MvProjectEntries::filesThatAreNotWhole()
{
    auto [before, after, told, shown] = MvRows<QByteArray, QByteArray, QString, QString>::current();
    const MvCalendarEventList list{entry(u"A"_s, {1956, 1, 10}), entry(u"B"_s, {1957, 1, 10})};
    QByteArray bytes = MvProjectFile::toBytes(document(), m_folder->path(), {}, {}, list);
    const qsizetype place = bytes.indexOf(before);
    QVERIFY(place > 0);
    QVERIFY(MvTestFiles::write(file().filePath(), bytes.replace(place, before.size(), after)));
    added(u"Vorher"_s);
    const MvOutcome opened = m_project->open(file());
    const QString said = opened.error + opened.notes.join(u' ');
    const int line = int(bytes.first(bytes.indexOf("<CalendarEvent>")).count('\n')) + 1;
    told.replace(u"%1"_s, QString::number(line)).replace(u"%2"_s, QString::number(line + 1));
    QVERIFY2(said.contains(told) && said.isEmpty() == told.isEmpty(), qPrintable(said));
    QCOMPARE(names(registry().activeEventList()).join(u' '), shown);
    for (const MvCalendarEvent &event : registry().activeEventList())
        QVERIFY(!event.foto().isValid() || !event.foto().mayBeOpened());
}

/// Wherever its folder goes, and whatever becomes of the user's photos.
void tst_MvProjectEntries::fotosGoWithTheCalendar()
{
    QVERIFY(MvTestFiles::writeFoto(path(u"rot.png"_s), {16, 12}, Qt::red));
    MvCalendarEvent oma = entry(u"Oma"_s, {1941, 1, 9}, MvFoto(file(u"rot.png"_s)));
    const MvCalendarEvent opa = entry(u"Opa"_s, {1938, 1, 9}, oma.foto()); // the same photo
    push({}, oma);
    push({}, opa);
    QVERIFY(QDir().mkpath(path(u"a"_s)));
    QVERIFY(m_project->saveAs(file(u"a/k.mvcalendar"_s)).isOk() && !m_project->isModified());
    QCOMPARE(QDir(path(u"a/eintraege"_s)).entryList(QDir::Files).size(), 1);
    oma = registry().activeEventList().first();
    MvCalendarEvent renamed = oma;
    renamed.setEventName(u"Oma Erna"_s);
    QCOMPARE(renamed.takeFoto(oma.foto()).error, QString()); // as the editor does: no copy of a copy
    push(oma, renamed);
    QVERIFY(m_project->save().isOk());
    QCOMPARE(QDir(path(u"a/eintraege"_s)).entryList(QDir::Files).size(), 1);
    m_project->newProject(document());
    QVERIFY(QDir(path(u"daten/calendarEventFotos"_s)).removeRecursively());
    QVERIFY(QDir().rename(path(u"a"_s), path(u"anderswo"_s)));

    QVERIFY(m_project->open(file(u"anderswo/k.mvcalendar"_s)).isOk());
    for (const MvCalendarEvent &event : registry().activeEventList())
        QCOMPARE(QImage(event.imagePath().filePath()).pixelColor(3, 3).red(),
                 QImage(path(u"rot.png"_s)).pixelColor(3, 3).red());
    QVERIFY(MvTestFiles::write(path(u"b/eintraege"_s), "in the way"));
    const MvOutcome without = m_project->saveAs(file(u"b/k.mvcalendar"_s));
    QVERIFY2(without.isOk() && without.notes.join(u' ').contains(u"„Oma Erna“"_s), qPrintable(without.error));
    QCOMPARE(registry().activeEventList().first().imagePath().isFile(), true);
}

/// Steps back and forth give the same files in both lists, though saving moves a calendar's photos.
void tst_MvProjectEntries::stepsKeepTheirFotos()
{
    QVERIFY(MvTestFiles::writeFoto(path(u"rot.png"_s), {16, 12}, Qt::red));
    QVERIFY(MvTestFiles::writeFoto(path(u"blau.png"_s), {16, 12}, Qt::blue));
    const auto fotos = [] {
        QStringList paths;
        for (const MvCalendarEvent &event : registry().activeEventList() + registry().ownEvents())
            paths.append(event.imagePath().filePath());
        return paths;
    };
    const auto isRed = [](const QString &foto) { return QImage(foto).pixelColor(3, 3).red() > 200; };
    MvUndoController &undo = MvUndoController::instance();
    m_project->setEntriesReachOwn(true);
    push({}, entry(u"Oma"_s, {1941, 1, 9}, MvFoto(file(u"rot.png"_s))));
    MvCalendarEvent changed = registry().activeEventList().first();
    QCOMPARE(changed.takeFoto(MvFoto(file(u"blau.png"_s))).error, QString());
    push(registry().activeEventList().first(), changed);
    QVERIFY(m_project->saveAs(file()).isOk());
    const QStringList saved = fotos();
    QVERIFY(saved.size() == 2 && saved.first() != saved.last() && !isRed(saved.first()));
    for (int round = 0; round < 2; ++round) {
        undo.undo();
        QCOMPARE(fotos().size(), 2);
        QVERIFY(isRed(fotos().first()) && isRed(fotos().last()));
        undo.undo();
        QCOMPARE(fotos(), QStringList());
        undo.redo();
        undo.redo();
        QCOMPARE(fotos(), saved);
    }
}

/// But not before nothing names them any more, and never what somebody else has put there.
void tst_MvProjectEntries::fotosNobodyNeedsGo()
{
    QVERIFY(MvTestFiles::writeFoto(path(u"rot.png"_s), {16, 12}, Qt::red));
    const MvCalendarEvent oma = entry(u"Oma"_s, {1941, 1, 9}, MvFoto(file(u"rot.png"_s)));
    push({}, oma);
    MvCalendarDocument lines = document();
    lines.setTitle(u"zwei\nZeilen"_s); // which a file writes as a number
    m_project->change(lines, u"Titel"_s);
    QVERIFY(m_project->saveAs(file()).isOk());
    const QDir folder(path(u"eintraege"_s));
    const QString name = folder.entryList(QDir::Files).value(0);
    QVERIFY(MvTestFiles::writeFoto(path(u"eintraege/fremd-0123456789ab.png"_s)));
    const auto makeOld = [&folder] {
        for (const QString &each : folder.entryList(QDir::Files)) {
            QFile foto(folder.filePath(each));
            QVERIFY(foto.open(QIODevice::ReadWrite) &&
                    foto.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime));
        }
    };
    makeOld();
    const auto saveAnew = [this] { // with a change, as a person would
        QVERIFY(m_project->open(file()).isOk());
        added(u"Neu"_s);
        QVERIFY(m_project->save().isOk());
    };
    const auto forgetBackups = [this] {
        for (const QString &backup : QDir(m_folder->path()).entryList({u"*~"_s}, QDir::Files))
            QVERIFY(QFile::remove(path(backup)));
    };
    push(registry().activeEventList().first(), {});
    QVERIFY(m_project->save().isOk()); // a step back would bring it back
    saveAnew();                        // a backup has it
    QCOMPARE(folder.entryList(QDir::Files).size(), 2);
    MvCalendarEvent beside = oma;
    beside.relocateFoto(MvFoto(QFileInfo(folder.filePath(name))));
    QVERIFY(MvProjectFile::write(document(), MvCalendarEventList{beside}, file(u"anderer.mvcalendar"_s)).isOk());
    forgetBackups();
    saveAnew(); // another calendar has it
    QCOMPARE(folder.entryList(QDir::Files).size(), 2);
    QVERIFY(QFile::rename(path(u"anderer.mvcalendar"_s), path(u"daten/weg"_s)));
    forgetBackups();
    saveAnew();
    QCOMPARE(folder.entryList(QDir::Files), QStringList{u"fremd-0123456789ab.png"_s});
    QVERIFY(QFile::rename(path(u"daten/weg"_s), path(u"anderer.mvcalendar"_s)));
    QVERIFY(m_project->open(file(u"anderer.mvcalendar"_s)).isOk());
    QVERIFY(registry().activeEventList().first().imagePath().isFile()); // the bin gives it back
}

void tst_MvProjectEntries::calendarsWithoutAListTakeTheUsers()
{
    registry().setOwnEvents({entry(u"Oma"_s, {1941, 1, 9})});
    QCOMPARE(names(registry().activeEventList()), QStringList{u"Oma"_s}); // the new one starts with it
    QVERIFY(m_project->saveAs(file(u"neu.mvcalendar"_s)).notes.isEmpty());
    QVERIFY(MvProjectFile::write(document(), file()).isOk());
    QVERIFY(m_project->open(file()).isOk());
    QVERIFY(!m_project->isModified());
    registry().setOwnEvents({registry().ownEvents().first(), entry(u"Opa"_s, {1938, 1, 9})});
    QCOMPARE(names(registry().activeEventList()).join(u' '), u"Oma Opa"_s); // until it is saved
    QVERIFY(!m_project->isModified());
    const MvOutcome saved = m_project->save();
    QVERIFY2(saved.notes.join(u' ').contains(u"2 aus Ihren Einträgen"_s), qPrintable(saved.notes.join(u' ')));
    QVERIFY(m_project->save().notes.isEmpty()); // once
    registry().setOwnEvents({});
    QCOMPARE(names(registry().activeEventList()).join(u' '), u"Oma Opa"_s);
    QCOMPARE(names(inFile(file())).join(u' '), u"Oma Opa"_s);
    QVERIFY(m_project->open(file(u"neu.mvcalendar"_s)).isOk());
    QCOMPARE(names(registry().activeEventList()), QStringList{u"Oma"_s});
}

void tst_MvProjectEntries::unreadableListsAreNotReplacedByNothing()
{
    MvCalendarDocument packed = document();
    packed.setEntriesFile(path(u"liste.xml"_s));
    QVERIFY(MvProjectFile::write(packed, file()).isOk());
    QVERIFY(MvTestFiles::write(path(u"liste.xml"_s), "<CalendarEvents><CalendarEvent>"));
    QVERIFY(m_project->open(file()).notes.join(u' ').contains(u"liste.xml"_s));
    QVERIFY(m_project->save().isOk());
    QVERIFY(MvTestFiles::write(path(u"liste.xml"_s), MvCalendarEventFile::toBytes({entry(u"Oma"_s, {1941, 1, 9})})));
    QVERIFY(m_project->open(file()).notes.isEmpty());
    QCOMPARE(names(registry().activeEventList()), QStringList{u"Oma"_s});
    QVERIFY(m_project->save().isOk() && QFile::remove(path(u"liste.xml"_s)));
    QCOMPARE(names(inFile(file())), QStringList{u"Oma"_s}); // it is the calendar's own by now

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"calendarEvents.xml"_s));
    QVERIFY(MvTestFiles::write(path(u"daten/calendarEvents.xml"_s), "<CalendarEvents>"));
    registry().load();
    QVERIFY(MvProjectFile::write(document(), file()).isOk());
    QVERIFY(m_project->open(file()).isOk() && m_project->save().isOk());
    QVERIFY(!MvProjectFile::read(file()).entries);
    registry().userFile().dismissReadProblem();
}

/// Two programs have one calendar open: the pages of the later one count, the entries of both.
void tst_MvProjectEntries::nobodysChangesAreLost()
{
    const MvCalendarEventList base{added(u"A"_s), added(u"B"_s), added(u"C"_s)};
    QVERIFY(m_project->saveAs(file()).isOk());
    MvCalendarEventList theirs = base;
    theirs.removeAt(1);
    theirs.append(entry(u"Ihres"_s, {2000, 5, 5}));
    MvCalendarEvent changed = base.first();
    changed.setEventName(u"A1"_s);
    push(base.first(), changed);
    push(base.last(), {});
    added(u"Meins"_s);
    QVERIFY(MvProjectFile::write(document(), theirs, file()).isOk());
    QVERIFY(m_project->save().isOk());
    QCOMPARE(names(inFile(file())).join(u' '), u"A1 Meins Ihres"_s);
    QCOMPARE(registry().activeEventList(), inFile(file()));
    QVERIFY(!m_project->isModified());
}

/// Photos beside the calendar are to be opened from the file in the recovery folder, and from no other that says so.
void tst_MvProjectEntries::unsavedEntriesAreRecovered()
{
    QVERIFY(MvTestFiles::writeFoto(path(u"eintraege/oma.png"_s)));
    MvCalendarEvent oma = entry(u"Oma"_s, {1941, 1, 9});
    oma.relocateFoto(MvFoto(file(u"eintraege/oma.png"_s)));
    const QFileInfo lost(MvProjectAutosave::folder() + u"/verloren.mvcalendar"_s);
    const QFileInfo foreign = file(u"x/fremd.mvcalendar"_s);
    for (const QFileInfo &there : {lost, foreign})
        QVERIFY(MvTestFiles::write(
            there.filePath(),
            MvProjectFile::toBytes(document(), there.absoluteDir(), file().filePath(), {}, MvCalendarEventList{oma})));
    QVERIFY(MvProjectRecovery::open(MvProjectRecovery::found().value(0), *m_project).isOk());
    QVERIFY(registry().activeEventList().first().foto().mayBeOpened() && m_project->isModified());
    QVERIFY(m_project->save().isOk());
    QCOMPARE(inFile(file()), MvCalendarEventList{oma});
    QVERIFY(!inFile(foreign).first().foto().mayBeOpened());
}

MV_TEST_MAIN(tst_MvProjectEntries)
#include "tst_MvProjectEntries.moc"
