// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCore/MvUndoController.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"
#include "MvProject/MvProject.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;

class tst_MvProject : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void dividesTheRange();
    void fotosFollowTheirMonths();
    void monthsThatStayKeepTheirPage();
    void tellsWhatChanged();
    void mergesSteps_data();
    void mergesSteps();
    void savesAndOpens();
    void twoProjectsAtATime();
};

void tst_MvProject::dividesTheRange()
{
    const QDate january(2027, 1, 1);
    for (const auto &[layout, months, pages] :
         {std::tuple(u"DAY_LIST"_s, 3, QList{january, january.addMonths(1), january.addMonths(2)}),
          {u"YEAR_GRID"_s, 12, {january}},
          {u"YEAR_PLANNER"_s, 18, {january, january.addYears(1)}}}) {
        MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, months);
        QCOMPARE(calendar.pages().size(), months);
        calendar.setAppearance(appearance(layout));
        QCOMPARE(calendar.pageDates(), pages);
        calendar.setAppearance(appearance(u"ONE_ROW_STRIP"_s));
        QCOMPARE(calendar.pages().size(), months);
        QVERIFY(calendar.isValid());

        // a year among months leaves the others alone, until it is the only page
        MvCalendarPage year = calendar.pages()[1];
        year.setAppearance(appearance(u"YEAR_GRID"_s));
        calendar.setPage(1, year);
        QCOMPARE(calendar.pages().size(), months);
        calendar.setRange({QDate(2027, 1, 1), QDate(2027, 4, 30)});
        QCOMPARE(calendar.pages().size(), 4);
        calendar.setAppearance(year.appearance());
        QCOMPARE(calendar.pages().size(), 1);
        MvCalendarPage month = calendar.pages()[0];
        month.setAppearance(appearance(u"DAY_LIST"_s));
        calendar.setPage(0, month);
        QCOMPARE(calendar.pages().size(), 4);
    }
}

void tst_MvProject::fotosFollowTheirMonths()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s);
    for (int page = 0; page < 12; ++page)
        setFoto(calendar, page, MvFotoFrame(u"/fotos/%1.jpg"_s.arg(page + 1)));
    const MvCalendarDocument before = calendar;
    calendar.setAppearance(appearance(u"YEAR_GRID"_s));
    QCOMPARE(calendar.pages()[0].fotoFrame().path(), u"/fotos/1.jpg"_s);
    calendar.setAppearance(before.appearance());
    QVERIFY(calendar == before);

    calendar.setRange({QDate(2027, 3, 1), QDate(2028, 2, 28)});
    QCOMPARE(calendar.pages()[0].fotoFrame().path(), u"/fotos/3.jpg"_s);
    QVERIFY(!calendar.pages()[11].fotoFrame().isValid()); // a new month has none
    QCOMPARE(calendar.spareFotos().keys(), (QList<QDate>{QDate(2027, 1, 1), QDate(2027, 2, 1)}));
    calendar.setRange(before.range());
    QVERIFY(calendar == before);
}

void tst_MvProject::monthsThatStayKeepTheirPage()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 3);
    for (int page = 0; page < 3; ++page) {
        MvCalendarPage changed = calendar.pages()[page];
        changed.setAppearance(appearance(QStringList{u"DAY_LIST"_s, u"TWO_WEEKS"_s, u"WEEK_COLUMNS"_s}[page]));
        changed.setContentConfig(changed.contentConfig().moveToDay(QDate(1999, 9, 9))); // the place decides
        calendar.setPage(page, changed);
    }
    calendar.setRange({QDate(2026, 12, 1), QDate(2027, 4, 30)});
    QStringList layouts;
    for (const MvCalendarPage &page : calendar.pages())
        layouts.append(page.appearance().layoutSchema().ID().toString());
    QCOMPARE(layouts,
             (QStringList{u"DAY_LIST"_s, u"DAY_LIST"_s, u"TWO_WEEKS"_s, u"WEEK_COLUMNS"_s, u"WEEK_COLUMNS"_s}));
    QCOMPARE(calendar.pageDates().first(), QDate(2026, 12, 1));
    calendar.setRange({});
    QVERIFY(calendar.pages().isEmpty());
    QCOMPARE(calendar.appearance().layoutSchema().ID().toString(), u"DAY_LIST"_s); // the look stays
}

void tst_MvProject::tellsWhatChanged()
{
    MvProject project;
    project.newProject(document(u"MONTH_GRID_CLASSIC"_s));
    QVERIFY(!project.isModified());
    const QSignalSpy pages(&project, &MvProject::pageChanged);
    const QSignalSpy resets(&project, &MvProject::pagesReset);
    const QSignalSpy modified(&project, &MvProject::modifiedChanged);

    project.changePage(4, project.document().pages()[4], u"nichts"_s);
    QVERIFY(!MvUndoController::instance().stack()->canUndo());
    MvCalendarPage may = project.document().pages()[4];
    may.setAppearance(appearance(u"DAY_LIST"_s));
    project.changePage(4, may, u"Layout"_s);
    QCOMPARE(pages.size(), 1);
    QCOMPARE(pages.first().first().toInt(), 4);

    MvCalendarDocument wider = project.document();
    MvPageFormat format = wider.format();
    format.setBleed(0.0);
    wider.setFormat(format);
    project.change(wider, u"Beschnitt"_s);
    QCOMPARE(resets.size(), 1);
    MvUndoController::instance().undo();
    MvUndoController::instance().undo();
    QCOMPARE(resets.size(), 2);
    QCOMPARE(pages.size(), 2);
    QVERIFY(!project.isModified());
    QCOMPARE(modified.size(), 2);

    // a new title is seen where it is printed
    MvCalendarPage titled = project.document().pages()[7];
    titled.addElement({{200, 200, 500, 100}, MvTextElement(u"{title}"_s)});
    project.changePage(7, titled, u"Text"_s);
    MvCalendarDocument renamed = project.document();
    renamed.setTitle(u"Anders"_s);
    project.change(renamed, u"Titel"_s);
    QCOMPARE(pages.size(), 4);
    QCOMPARE(pages.last().first().toInt(), 7);

    project.newProject(document(u"DAY_LIST"_s));
    QVERIFY(!MvUndoController::instance().stack()->canRedo());
}

void tst_MvProject::mergesSteps_data()
{
    const MvRows<QList<std::pair<int, int>>, int> row; // changes: page and merge id; steps
    row("typing", {{0, 7}, {0, 7}, {0, 7}}, 1);
    row("without an id", {{0, -1}, {0, -1}}, 2);
    row("another field", {{0, 7}, {0, 8}, {0, 7}}, 3);
    row("another page", {{0, 7}, {1, 7}}, 2);
}

void tst_MvProject::mergesSteps()
{
    const auto [changes, steps] = MvRows<QList<std::pair<int, int>>, int>::current();
    MvProject project;
    project.newProject(document(u"MONTH_GRID_CLASSIC"_s));
    const MvCalendarDocument before = project.document();
    int number = 0;
    for (const auto &[page, mergeId] : changes) {
        MvCalendarPage changed = project.document().pages()[page];
        changed.setFotoFrame(MvFotoFrame(u"/fotos/%1.jpg"_s.arg(++number)));
        project.changePage(page, changed, u"Foto"_s, mergeId);
    }
    const MvCalendarDocument after = project.document();
    QCOMPARE(MvUndoController::instance().stack()->count(), steps);
    for (int step = 0; step < steps; ++step)
        MvUndoController::instance().undo();
    QVERIFY(project.document() == before);
    for (int step = 0; step < steps; ++step)
        MvUndoController::instance().redo();
    QVERIFY(project.document() == after);
}

void tst_MvProject::savesAndOpens()
{
    const QTemporaryDir dir;
    const QFileInfo file(dir.filePath(u"Oma & Opa.mvcalendar"_s));
    MvProject project;
    project.newProject(document(u"MONTH_GRID_CLASSIC"_s));
    QVERIFY(!project.save().isOk());
    const QString error = project.saveAs(QFileInfo(dir.filePath(u"nirgends/a.mvcalendar"_s))).error;
    QVERIFY2(error.contains(u"nirgends/a.mvcalendar"_s), qPrintable(error));
    QVERIFY(project.fileInfo().filePath().isEmpty());

    MvCalendarDocument changed = project.document();
    changed.setTitle(u"Neu"_s);
    project.change(changed, u"Titel"_s);
    QVERIFY(project.isModified());
    QCOMPARE(project.saveAs(file).error, QString());
    QVERIFY(!project.isModified());
    QCOMPARE(project.displayName(), u"Oma & Opa"_s);
    MvUndoController::instance().undo();
    QVERIFY(project.isModified());

    MvProject other;
    QCOMPARE(other.open(file).error, QString());
    QVERIFY(other.document() == changed);
    QVERIFY(!other.isModified() && !other.isFileChangedByOthers());
    QVERIFY(project.save());
    QVERIFY(other.isFileChangedByOthers());
    QVERIFY(other.open(QFileInfo(dir.filePath(u"fehlt.mvcalendar"_s))).error.contains(u"fehlt.mvcalendar"_s));
    QVERIFY(other.document() == changed); // what was open stays
}

/// Two projects of one program, each with a session of its own beside the default one: neither steps nor entries of one
/// reach another, and nothing of theirs the user's file.
void tst_MvProject::twoProjectsAtATime()
{
    MvSession sessions[2];
    MvProject first(nullptr, sessions[0]);
    MvProject second(nullptr, sessions[1]);
    const QDate day(2027, 2, 9);
    const auto add = [&day](MvSession &session, const QString &name) {
        const MvCalendarEvent entry(name, day.startOfDay(), true, MvFoto(), QUuid::createUuid(), {});
        session.undo().push(new MvCalendarEventStep({}, entry, session));
    };
    const auto shown = [&day](const MvSession &session) {
        MvCalendariumHolidayConfig config;
        config.setFeature(MvCalendariumFeatures(FEATURE_ENTRIES), true);
        const MvCalendarEventSource &entries = session.entries();
        const MvCalendariumContentKey key({day, config}, entries.project());
        const QString text = MvSVGCompilerInstructionsFactory::instance().text(u"{entries}"_s, key);
        const QString names = entries.descriptions(key).join(u", "_s);
        return text == names ? names : u"artwork shows "_s + text;
    };
    const auto painted = [](const MvProject &project) {
        MvRenderingSources sources;
        sources.entries = &project.session().entries();
        const MvCalendarDocument &calendar = project.document();
        return calendar.pages()
            .constLast()
            .record(calendar.format(), calendar.range(), {}, MvRenderingRule(MvRenderingRule::Print), 1.0, sources)
            .describe();
    };
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 2);
    MvCalendariumHolidayConfig config = calendar.holidayConfig();
    config.setFeature(MvCalendariumFeatures(FEATURE_ENTRIES), true);
    calendar.setHolidayConfig(config);
    first.newProject(calendar);
    second.newProject(calendar);
    const MvCalendarDocument before = first.document();
    const QString empty = painted(first);
    QCOMPARE(painted(second), empty);
    MvCalendarDocument titled = before;
    titled.setTitle(u"Familie"_s);
    first.change(titled, u"title"_s);
    add(first.session(), u"Oma"_s);
    add(second.session(), u"Opa"_s);
    add(second.session(), u"Tim"_s);
    QCOMPARE(shown(first.session()), u"Oma"_s);
    QCOMPARE(shown(second.session()), u"Opa, Tim"_s);
    const QString two = painted(second);
    QVERIFY(painted(first) != empty && two != empty && painted(first) != two);

    first.session().undo().undo();
    first.session().undo().undo();
    QCOMPARE(first.document(), before);
    QCOMPARE(shown(first.session()), QString());
    QCOMPARE(painted(first), empty);
    QCOMPARE(painted(second), two);
    QCOMPARE(shown(second.session()), u"Opa, Tim"_s);

    first.newProject(document(u"DAY_LIST"_s, 1)); // gives up its own steps alone
    QVERIFY(!first.session().undo().stack()->canRedo());
    second.session().undo().undo();
    QCOMPARE(shown(second.session()), u"Opa"_s);
    QVERIFY(!MvUndoController::instance().stack()->canUndo());
    QCOMPARE(shown(MvSession::defaultSession()), QString());
    QVERIFY(!MvCalendarEventRegistry::instance().calendarEventsDir().exists());
}

MV_TEST_MAIN(tst_MvProject)
#include "tst_MvProject.moc"
