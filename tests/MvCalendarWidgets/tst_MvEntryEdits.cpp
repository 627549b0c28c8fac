// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventProjectStore.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/MvEntryListModel.h"
#include "MvCore/MvUndoController.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;
using Membership = MvEntryEdits::Membership;

namespace {

/// Keeps the list of one document, so that the user's own is another one.
struct OneProject : MvCalendarEventProjectStore
{
    bool keeps(const MvProjectIdentifier &project) const override { return project == id; }
    bool holdsFoto(const QString &) const override { return true; }
    void listChanged(const MvProjectIdentifier &) override { ++changes; }

    MvProjectIdentifier id{u"calendar"_s, true};
    int changes = 0;
};

} // namespace

/// Several entries and their groups at once, in a calendar's list and in the user's own.
class tst_MvEntryEdits : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { registry().installProjectStore(nullptr); }
    void memberships_data();
    void memberships();
    void groupsGoAndComeBack();
    void othersKeepTheirGroups();
    void groupsComeAlong_data();
    void groupsComeAlong();
    void groupsAreOneByName();
    void shiftsAndRemoves();
    void finds_data();
    void finds();

private:
    MvCalendarEventRegistry &registry() const { return m_session->entries(); }
    MvCalendarEventList list() const { return registry().activeEventList(); }
    /// "Anna: Familie, Verein; Bert:"
    static QString described(const MvCalendarEventList &events)
    {
        QStringList all;
        for (const MvCalendarEvent &event : events) {
            QStringList names;
            for (const QString &id : event.groups())
                names.append(events.groups().find(id) ? events.groups().find(id)->name : u'?' + id);
            all.append(event.description() + u": "_s + names.join(u", "_s));
        }
        return all.join(u"; "_s);
    }
    QString undone() const
    {
        m_session->undo().undo();
        return described(list());
    }

    std::unique_ptr<MvSession> m_session;
    OneProject m_store;
    MvCalendarEventList m_before;
};

void tst_MvEntryEdits::init()
{
    m_session = std::make_unique<MvSession>();
    MvCalendarEventList own{entry(u"Anna"_s, {1990, 3, 9}), entry(u"Bert"_s, {MvCalendarEvent::unknownYear, 12, 31}),
                            entry(u"Chor"_s, {2027, 1, 14})};
    MvEventRepetition weekly;
    weekly.rule = MvRecurrenceRule::parse(u"FREQ=WEEKLY"_s).rule;
    own[2].setRepetition(weekly);
    const QString family = own.groups().idOfName(u"Familie"_s);
    own.groups().idOfName(u"Verein"_s);
    own[0].setGroups({family});
    registry().setEvents(own);
    registry().updateActiveModelId(registry().activeModelId(), DEFAULT_PROJECT_ID);
    registry().installProjectStore(&m_store);
    registry().takeList(m_store.id, own);
    registry().setActiveModelId(m_store.id, true);
    m_before = list();
    m_store.changes = 0;
}

void tst_MvEntryEdits::memberships_data()
{
    const MvRows<QString, int, QString> row; // group, membership, expected
    row("only", u"verein"_s, int(Membership::Only), u"Anna: Verein; Bert: Verein; Chor: "_s);
    row("added", u"Verein"_s, int(Membership::Added), u"Anna: Familie, Verein; Bert: Verein; Chor: "_s);
    row("removed", u"Familie"_s, int(Membership::Removed), u"Anna: ; Bert: ; Chor: "_s);
    row("none", QString(), int(Membership::Only), u"Anna: ; Bert: ; Chor: "_s);
    row("new", u"Klasse 5b"_s, int(Membership::Only), u"Anna: Klasse 5b; Bert: Klasse 5b; Chor: "_s);
    row("as it is", u"Familie"_s, int(Membership::Added), u"Anna: Familie; Bert: Familie; Chor: "_s);
}

void tst_MvEntryEdits::memberships()
{
    const auto [group, membership, expected] = MvRows<QString, int, QString>::current();
    QSignalSpy signalled(&registry(), &MvCalendarEventRegistry::eventsChanged);
    MvEntryEdits(*m_session).setMembership({m_before.at(0), m_before.at(1)}, group, Membership(membership));
    QCOMPARE(described(list()), expected);
    QCOMPARE(signalled.count(), 1);
    QCOMPARE(m_session->undo().stack()->count(), 1);
    QCOMPARE(undone(), described(m_before));
    QCOMPARE(list().groups(), m_before.groups()); // a new one has gone as well
    m_session->undo().redo();
    QCOMPARE(described(list()), expected);
}

void tst_MvEntryEdits::groupsGoAndComeBack()
{
    MvEntryEdits edits(*m_session);
    edits.setGroups({}, u"Weg"_s); // both, in one step: the last group goes, too
    QCOMPARE(described(list()), u"Anna: ; Bert: ; Chor: "_s);
    QVERIFY(list().groups().isEmpty());
    QCOMPARE(m_session->undo().undoName(), u"Weg"_s);
    QCOMPARE(described(registry().ownEvents()), described(m_before)); // nobody asked for that
    QCOMPARE(undone(), described(m_before));
    QCOMPARE(list().groups(), m_before.groups());

    MvEventGroupList renamed = list().groups();
    renamed[0].name = u"Sippe"_s;
    renamed.move(0, 1);
    edits.setGroups(renamed, u"Neu"_s);
    QCOMPARE(described(list()), u"Anna: Sippe; Bert: ; Chor: "_s);
    MvEventGroupList byOthers = list().groups();
    byOthers[0].color = Qt::red;
    byOthers.idOfName(u"Dritte"_s);
    registry().setGroups(byOthers);
    QCOMPARE(undone(), described(m_before)); // what somebody else has done to the groups since stays
    QCOMPARE(list().groups().findName(u"Verein"_s)->color, QColor(Qt::red));
    QCOMPARE(list().groups().size(), 3);
}

/// Where changes reach the user's own list, its other entries keep their group.
void tst_MvEntryEdits::othersKeepTheirGroups()
{
    registry().setChangesReachOwn(true);
    MvCalendarEventList own = registry().ownEvents();
    own.append(entry(u"Dora"_s, {1980, 1, 1}));
    own.last().setGroups({own.groups().findName(u"Familie"_s)->id});
    registry().setOwnEvents(own);
    MvEntryEdits(*m_session).setGroups({}, u"Weg"_s);
    QCOMPARE(described(registry().ownEvents()), u"Anna: ; Bert: ; Chor: ; Dora: Familie"_s);
    QCOMPARE(registry().ownEvents().groups().size(), 1);
    m_session->undo().undo();
    QCOMPARE(described(registry().ownEvents()), described(own));
    QCOMPARE(registry().ownEvents().groups().size(), 2);
}

void tst_MvEntryEdits::groupsComeAlong_data()
{
    using Reach = MvEntryEdits::Reach;
    // group: of the new entry; active: groups that come
    const MvRows<int, bool, QString, QString, QString> row;
    row("of a file", int(Reach::AsSet), false, u"Klasse"_s, u"Klasse Leer"_s, QString());
    row("of a file, by the switch", int(Reach::AsSet), true, u"Klasse"_s, u"Klasse Leer"_s, u"Klasse Leer"_s);
    row("of this calendar, by the switch", int(Reach::AsSet), true, u"Hier"_s, u"Klasse Leer"_s, u"Hier Klasse Leer"_s);
    row("from the own", int(Reach::ActiveList), true, u"Dort"_s, u"Dort Klasse Leer"_s, QString());
    row("to the own", int(Reach::OwnList), false, u"Hier"_s, QString(), u"Hier Klasse Leer"_s);
}

/// Those of the entries, and others of their file, in the same step; they stay where somebody uses them by then.
void tst_MvEntryEdits::groupsComeAlong()
{
    const auto [reach, reachesOwn, group, active, own] = MvRows<int, bool, QString, QString, QString>::current();
    using List = MvCalendarEventRegistry::List;
    const auto addGroup = [this](List list, const QString &name) {
        MvEventGroupList groups = (list == List::Own ? registry().ownEvents() : this->list()).groups();
        groups.idOfName(name);
        registry().setGroups(groups, list);
    };
    addGroup(List::Active, u"Hier"_s);
    addGroup(List::Own, u"Dort"_s);
    const MvEventGroupList before = list().groups();
    const MvEventGroupList ownBefore = registry().ownEvents().groups();
    const auto come = [](const MvEventGroupList &groups, const MvEventGroupList &known) {
        QStringList names;
        for (const MvEventGroup &one : groups) {
            if (!known.find(one.id))
                names.append(one.name);
        }
        names.sort();
        return names.join(u' ');
    };
    registry().setChangesReachOwn(reachesOwn);
    MvEventGroupList ofFile;
    ofFile.idOfName(u"Klasse"_s);
    ofFile.idOfName(u"Leer"_s);
    MvCalendarEvent dora = entry(u"Dora"_s, {1980, 1, 1});
    dora.setGroups({MvEventGroup::named(group).id});
    MvEntryEdits edits(*m_session);
    edits.change(u"import"_s, u"Import"_s, {{{}, dora}}, MvEntryEdits::Reach(reach), ofFile);
    for (int turn = 0; turn < 2; ++turn) {
        QCOMPARE(come(list().groups(), before), active);
        QCOMPARE(come(registry().ownEvents().groups(), ownBefore), own);
        m_session->undo().undo();
        QCOMPARE(list().groups(), before);
        QCOMPARE(registry().ownEvents().groups(), ownBefore);
        m_session->undo().redo();
    }
    MvCalendarEventList byOthers = list();
    byOthers.groups().idOfName(group);
    byOthers[2].setGroups({MvEventGroup::named(group).id});
    registry().setEvents(byOthers);
    m_session->undo().undo();
    QVERIFY(list().groups().findName(group));
    QVERIFY(!list().groups().findName(u"Leer"_s));
}

/// What people see as one group is one, in the calendar's list and in the user's own.
void tst_MvEntryEdits::groupsAreOneByName()
{
    const MvEventGroup other{u"f-2"_s, u"familie"_s, Qt::blue, {}, {}};
    const MvEventGroup renamed{MvEventGroup::named(u"Verein"_s).id, u"Chor"_s, {}, {}, {}};
    MvCalendarEventList active = list();
    active.setGroups({other, renamed});
    active[0].setGroups({other.id});
    registry().setEvents(active);
    const MvCalendarEventList own = registry().ownEvents();
    const auto inOwn = MvEntryIntake::inGroups(own.groups(), active, MvEntryIntake::Origin::OtherList);
    QCOMPARE(inOwn.groups(), own.groups());
    QVERIFY(MvCalendarEventMerge::differences(inOwn, own).isEmpty());

    registry().setChangesReachOwn(true);
    MvCalendarEvent dora = entry(u"Dora"_s, {1980, 1, 1});
    dora.setGroups({other.id});
    MvEntryEdits(*m_session).change(u"new"_s, u"Neu"_s, {{{}, dora}});
    MvEntryEdits(*m_session).setMembership({active.at(1)}, u"Familie"_s, MvEntryEdits::Membership::Added);
    QCOMPARE(described(registry().ownEvents()), u"Anna: Familie; Bert: Familie; Chor: ; Dora: Familie"_s);
    QCOMPARE(registry().ownEvents().groups().size(), own.groups().size());
    QCOMPARE(list().groups(), active.groups());
    m_session->undo().undo();
    m_session->undo().undo();
    QCOMPARE(described(registry().ownEvents()), described(own));
}

void tst_MvEntryEdits::shiftsAndRemoves()
{
    const auto dates = [this] {
        QStringList all;
        for (const MvCalendarEvent &event : list())
            all.append(MvCalendarEvent::dateText(event.dateTime().date()));
        return all.join(u' ');
    };
    MvEntryEdits edits(*m_session);
    edits.shift(m_before, 1, 0); // a year that nobody knows stays unknown, a weekday stays
    QCOMPARE(dates(), u"09.03.1991 31.12. 13.01.2028"_s);
    edits.shift(list(), 0, 1);
    QCOMPARE(dates(), u"10.03.1991 01.01. 14.01.2028"_s);
    edits.shift(list(), 0, 0);
    edits.remove({list().at(0), list().at(2)});
    QCOMPARE(described(list()), u"Bert: "_s);
    QCOMPARE(m_session->undo().stack()->count(), 3);
    undone();
    undone();
    QCOMPARE(undone(), described(m_before));
    QCOMPARE(list(), m_before);
}

void tst_MvEntryEdits::finds_data()
{
    const MvRows<QString, QString, QStringList> row; // words, group, found
    row("all, by month and day", QString(), QString(), QStringList{u"Chor"_s, u"Anna"_s, u"Bert"_s});
    row("name", u" BER "_s, QString(), QStringList{u"Bert"_s});
    row("month and year", u"1990 märz"_s, QString(), QStringList{u"Anna"_s});
    row("a year that nobody knows", u"1604"_s, QString(), QStringList());
    row("name of the group", u"fam"_s, QString(), QStringList{u"Anna"_s});
    row("group", QString(), u"familie"_s, QStringList{u"Anna"_s});
    row("without group", QString(), MvEntryListModel::none, QStringList{u"Chor"_s, u"Bert"_s});
    row("both", u"anna"_s, MvEntryListModel::none, QStringList());
}

void tst_MvEntryEdits::finds()
{
    const auto [words, group, expected] = MvRows<QString, QString, QStringList>::current();
    MvEntryListModel model(*m_session);
    model.setSearch(words);
    model.load();
    model.setGroup(group);
    QStringList found;
    for (int row = 0; row < model.rowCount(); ++row)
        found.append(model.index(row, 0).data().toString());
    QCOMPARE(found, expected);
    QCOMPARE(model.total(), 3);
    model.sort(MvEntryListModel::NameColumn, Qt::DescendingOrder);
    found.sort();
    std::reverse(found.begin(), found.end());
    for (int row = 0; row < model.rowCount(); ++row)
        QCOMPARE(model.event(row).description(), found.at(row));
    QCOMPARE(model.rowsOf(m_before).size(), model.rowCount());
}

MV_TEST_MAIN(tst_MvEntryEdits)
#include "tst_MvEntryEdits.moc"
