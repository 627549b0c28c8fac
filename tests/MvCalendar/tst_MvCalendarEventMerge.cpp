// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvEntryHistory.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventMerge.h"

using namespace Qt::StringLiterals;

class tst_MvCalendarEventMerge : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void joins_data();
    void joins();
    void threeWay_data() { MvRows<QString, QString, QString, QString>().read(u"entry-merges"_s); }
    void threeWay();
    void laterChangeOfAFieldWins();
    void partlyReadRemovesNothing();
    void anyEditsOfSeveralPrograms_data();
    void anyEditsOfSeveralPrograms();
};

static QDate dayOf(const QString &name)
{
    return QDate(2000, 1, 1).addDays(name.section(u'@', 1).toInt());
}

/// Entries from a text such as "a b:B -x ?y": uuid a with the same name, uuid b with the name B, a null uuid named x, a
/// new uuid named y. A name may end in "@3" for the fourth day.
static MvCalendarEventList list(const QString &text)
{
    MvCalendarEventList events;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString name = word.startsWith(u'-') || word.startsWith(u'?') ? word.mid(1) : word.section(u':', -1);
        QUuid uuid = QUuid::createUuidV5(QUuid(), word.section(u':', 0, 0));
        if (name.size() < word.size() && word.startsWith(u'-'))
            uuid = QUuid();
        else if (word.startsWith(u'?'))
            uuid = QUuid::createUuid();
        events.append(MvCalendarEvent(name, dayOf(name).startOfDay(), true, MvFoto(), uuid, QDateTime()));
    }
    return events;
}

static QString names(const MvCalendarEventList &events)
{
    return MvEntries::names(events).join(u' ');
}

void tst_MvCalendarEventMerge::joins_data()
{
    const MvRows<QString, QString, bool, QString> row; // base, other, keepBase, result
    row("new entries follow", u"a b"_s, u"b c"_s, true, u"a b c"_s);
    row("only the new ones", u"a b"_s, u"b c"_s, false, u"c"_s);
    row("another text does not make another entry", u"a"_s, u"a:A"_s, true, u"a"_s);
    row("without uuid always new", u"-x"_s, u"-x"_s, true, u"x x"_s);
    row("into nothing", u""_s, u"a a"_s, true, u"a a"_s);
}

void tst_MvCalendarEventMerge::joins()
{
    const auto [base, other, keepBase, result] = MvRows<QString, QString, bool, QString>::current();
    QCOMPARE(names(MvCalendarEventMerge::joined(list(base), list(other), keepBase)), result);
}

void tst_MvCalendarEventMerge::threeWay()
{
    const auto [base, mine, theirs, result] = MvRows<QString, QString, QString, QString>::current();
    QCOMPARE(names(MvCalendarEventMerge::threeWay(list(base), list(mine), list(theirs))), result);
}

void tst_MvCalendarEventMerge::laterChangeOfAFieldWins()
{
    const MvCalendarEventList base = list(u"a"_s);
    MvCalendarEventList early = base;
    early.first().setEventName(u"early"_s);
    QTest::qWait(5);
    MvCalendarEventList moved = base;
    moved.first().setDateTime(dayOf(u"@7"_s).startOfDay());
    MvCalendarEventList renamed = base;
    renamed.first().setEventName(u"late"_s);
    const auto merged = [&base](const MvCalendarEventList &mine, const MvCalendarEventList &theirs) {
        const MvCalendarEventList result = MvCalendarEventMerge::threeWay(base, mine, theirs);
        return names(result) + u' ' + QString::number(result.first().dateTime().date().day());
    };
    QCOMPARE(merged(early, moved), u"early 8"_s);
    QCOMPARE(merged(moved, early), u"early 8"_s);
    QCOMPARE(merged(early, renamed), u"late 1"_s);
    QCOMPARE(merged(renamed, early), u"late 1"_s);
}

void tst_MvCalendarEventMerge::partlyReadRemovesNothing()
{
    const auto merged = MvCalendarEventMerge::threeWay(list(u"a b c"_s), list(u"a b"_s), list(u"a:A d"_s), false);
    QCOMPARE(names(merged), u"A b d"_s);
}

void tst_MvCalendarEventMerge::anyEditsOfSeveralPrograms_data()
{
    const MvRows<int> row; // programs
    row("two", 2);
    row("three", 3);
}

/// What nobody removed stays, what somebody removed goes, and nothing is there twice.
void tst_MvCalendarEventMerge::anyEditsOfSeveralPrograms()
{
    const auto [programs] = MvRows<int>::current();
    struct Program
    {
        MvEntryEditor editor;
        MvCalendarEventList base;
        MvCalendarEventList events;
    };
    for (quint32 seed = 0; seed < 100; ++seed) {
        MvCalendarEventList file = MvEntryEditor::beginning();
        MvEntryHistory history;
        std::vector<Program> running;
        running.reserve(programs);
        for (int who = 0; who < programs; ++who)
            running.push_back({MvEntryEditor(seed * 10 + quint32(who), u"%1x"_s.arg(who)), file, file});
        const auto save = [&file](Program &program) {
            program.events = MvCalendarEventMerge::threeWay(program.base, program.events, file);
            program.base = program.events;
            file = program.events;
        };
        for (int step = 0; step < 60; ++step) {
            for (int who = 0; who < programs; ++who) {
                Program &program = running[size_t(who)];
                const MvEntryEdit edit = program.editor.next(program.events);
                history.note(who, edit.what, edit.id());
                if (edit.what == MvEntryEdit::Add)
                    program.events.append(edit.after);
                else if (edit.what == MvEntryEdit::Remove)
                    program.events.removeOne(edit.before);
                else
                    program.events.replace(program.events.indexOf(edit.before), edit.after);
                if (program.editor.bounded(5) < 2)
                    save(program);
            }
        }
        for (int round = 0; round < 2; ++round) // at last all know of each other
            std::for_each(running.begin(), running.end(), save);
        const QString mistake = history.mistakeIn(file);
        QVERIFY2(mistake.isEmpty(), qPrintable(u"seed %1: %2"_s.arg(seed).arg(mistake)));
        for (const Program &program : running)
            QCOMPARE(QSet<MvCalendarEvent>(program.events.cbegin(), program.events.cend()),
                     QSet<MvCalendarEvent>(file.cbegin(), file.cend()));
    }
}

MV_TEST_MAIN(tst_MvCalendarEventMerge)
#include "tst_MvCalendarEventMerge.moc"
