#include "MvTest.h"

#include "MvCalendar/MvCalendarEventMerge.h"

#include <QRandomGenerator>

class tst_MvCalendarEventMerge : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void joins_data();
    void joins();
    void threeWay_data();
    void threeWay();
    void laterChangeOfAFieldWins_data();
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
    QStringList names;
    for (const MvCalendarEvent &event : events)
        names.append(event.description());
    return names.join(u' ');
}

void tst_MvCalendarEventMerge::joins_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("keepBase");
    QTest::addColumn<QString>("result");
    QTest::newRow("new entries follow") << u"a b"_qs << u"b c"_qs << true << u"a b c"_qs;
    QTest::newRow("only the new ones") << u"a b"_qs << u"b c"_qs << false << u"c"_qs;
    QTest::newRow("another text does not make another entry") << u"a"_qs << u"a:A"_qs << true << u"a"_qs;
    QTest::newRow("without uuid always new") << u"-x"_qs << u"-x"_qs << true << u"x x"_qs;
    QTest::newRow("into nothing") << u""_qs << u"a a"_qs << true << u"a a"_qs;
}

void tst_MvCalendarEventMerge::joins()
{
    QFETCH(QString, base);
    QFETCH(QString, other);
    QFETCH(bool, keepBase);
    QTEST(names(MvCalendarEventMerge::joined(list(base), list(other), keepBase)), "result");
}

void tst_MvCalendarEventMerge::threeWay_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("mine");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("result");
    QTest::newRow("nothing happened") << u"a b"_qs << u"a b"_qs << u"a b"_qs << u"a b"_qs;
    QTest::newRow("both add") << u"a"_qs << u"a b"_qs << u"a c"_qs << u"a b c"_qs;
    QTest::newRow("I remove") << u"a b"_qs << u"a"_qs << u"a b"_qs << u"a"_qs;
    QTest::newRow("they remove") << u"a b"_qs << u"a b"_qs << u"a"_qs << u"a"_qs;
    QTest::newRow("I change") << u"a b"_qs << u"a b:B"_qs << u"a b"_qs << u"a B"_qs;
    QTest::newRow("they change") << u"a b"_qs << u"a b"_qs << u"a b:B"_qs << u"a B"_qs;
    QTest::newRow("I change what they remove") << u"a b"_qs << u"a b:B"_qs << u"a"_qs << u"a B"_qs;
    QTest::newRow("I remove what they change") << u"a b"_qs << u"a"_qs << u"a b:B"_qs << u"a B"_qs;
    QTest::newRow("both add the same text") << u"a"_qs << u"a b:x"_qs << u"a c:x"_qs << u"a x"_qs;
    QTest::newRow("without uuid: I remove") << u"-x a"_qs << u"a"_qs << u"-x a c"_qs << u"a c"_qs;
    QTest::newRow("without uuid: they add") << u"a"_qs << u"a"_qs << u"a -x"_qs << u"a x"_qs;
    QTest::newRow("order is mine") << u"a b c"_qs << u"c b a"_qs << u"a b c d"_qs << u"c b a d"_qs;
    const QString series = u"s:A@1 s:B@2 s:C@3"_qs;
    QTest::newRow("series: I continue, they add") << u"s:A@1"_qs << series << u"s:A@1 y"_qs << u"A@1 B@2 C@3 y"_qs;
    QTest::newRow("series: they rename") << series << u"s:A@1 s:B@2 s:C@3 n"_qs << u"s:A@1 s:B@2 s:X@3"_qs
                                         << u"A@1 B@2 X@3 n"_qs;
    QTest::newRow("series: they rename one and I another")
        << series << u"s:A@1 s:B@2 s:X@3"_qs << u"s:Y@1 s:B@2 s:C@3"_qs << u"Y@1 B@2 X@3"_qs;
    QTest::newRow("series: they remove one") << series << series << u"s:B@2 s:C@3"_qs << u"B@2 C@3"_qs;
    QTest::newRow("series: both rename one, both stay")
        << series << u"s:A@1 s:X@2 s:C@3"_qs << u"s:A@1 s:Y@2 s:C@3"_qs << u"A@1 X@2 Y@2 C@3"_qs;
    QTest::newRow("each reading makes new uuids")
        << u"?x ?y ?z"_qs << u"?x ?y ?z ?mine"_qs << u"?x ?z ?theirs"_qs << u"x z mine theirs"_qs;
    QTest::newRow("new uuids: both edit") << u"1:x 2:y"_qs << u"1:X 2:y"_qs << u"3:x 4:Y"_qs << u"X Y"_qs;
    QTest::newRow("two equal ones are two") << u"-x -x"_qs << u"-x -x a"_qs << u"-x -x -x"_qs << u"x x a x"_qs;
    QTest::newRow("one of two equal ones goes") << u"-x -x"_qs << u"-x -x a"_qs << u"-x"_qs << u"x a"_qs;
}

void tst_MvCalendarEventMerge::threeWay()
{
    QFETCH(QString, base);
    QFETCH(QString, mine);
    QFETCH(QString, theirs);
    QTEST(names(MvCalendarEventMerge::threeWay(list(base), list(mine), list(theirs))), "result");
}

void tst_MvCalendarEventMerge::laterChangeOfAFieldWins_data()
{
    QTest::addColumn<QString>("early");
    QTest::addColumn<QString>("late");
    QTest::addColumn<QString>("result");
    QTest::newRow("the same field") << u"a:early"_qs << u"a:late"_qs << u"late"_qs;
    QTest::newRow("name, then date") << u"a:early"_qs << u"a:a@7"_qs << u"early on 2000-01-08"_qs;
    QTest::newRow("date, then name") << u"a:a@7"_qs << u"a:late"_qs << u"late on 2000-01-08"_qs;
}

void tst_MvCalendarEventMerge::laterChangeOfAFieldWins()
{
    const auto read = [](const QString &text) { // "a@7" means the date alone
        MvCalendarEventList events = list(text);
        if (events.first().description().startsWith(u"a@"))
            events.first().setEventName(u"a"_qs);
        return events;
    };
    const auto shown = [](const MvCalendarEventList &events) {
        const QDate date = events.first().dateTime().date();
        const QString name = events.first().description().section(u'@', 0, 0);
        return events.size() != 1         ? names(events)
               : date == dayOf(QString()) ? name
                                          : name + u" on "_qs + date.toString(Qt::ISODate);
    };
    QFETCH(QString, early);
    QFETCH(QString, late);
    const MvCalendarEventList base = list(u"a"_qs);
    const MvCalendarEventList first = read(early);
    QTest::qWait(5);
    const MvCalendarEventList second = read(late);
    QTEST(shown(MvCalendarEventMerge::threeWay(base, first, second)), "result");
    QTEST(shown(MvCalendarEventMerge::threeWay(base, second, first)), "result");
}

void tst_MvCalendarEventMerge::partlyReadRemovesNothing()
{
    const auto merged = MvCalendarEventMerge::threeWay(list(u"a b c"_qs), list(u"a b"_qs), list(u"a:A d"_qs), false);
    QCOMPARE(names(merged), u"A b d"_qs);
}

void tst_MvCalendarEventMerge::anyEditsOfSeveralPrograms_data()
{
    QTest::addColumn<int>("programs");
    QTest::newRow("two") << 2;
    QTest::newRow("three") << 3;
}

namespace {

/// One of several programs that share a list.
struct Program
{
    MvCalendarEventList base;
    MvCalendarEventList events;
};

/// What became of one entry. Its number begins its name, however often it is renamed: "17", "17.4".
struct Story
{
    QSet<const Program *> changedBy;
    QSet<const Program *> removedBy;

    bool mustStay() const { return removedBy.isEmpty(); }
    bool isOnce() const { return changedBy.size() < 2; } // else two may have changed it at the same time
    bool mustBeGone() const { return !removedBy.isEmpty() && isOnce() && (changedBy - removedBy).isEmpty(); }
};

class Model
{
public:
    explicit Model(quint32 seed)
        : m_random(seed)
    {}

    /// The beginning of a series, which nobody touches: the series is known as such in every list.
    static MvCalendarEventList beginning() { return list(u"series:first series:second"_qs); }

    /// Adds, renames, moves or removes an entry: with a uuid of its own, of the series, or a null one.
    void edit(Program &program)
    {
        MvCalendarEventList &events = program.events;
        const int what = events.size() <= beginning().size() ? 0 : m_random.bounded(10);
        if (what < 5) {
            const QUuid uuids[] = {QUuid::createUuid(), QUuid::createUuidV5(QUuid(), u"series"_qs), QUuid()};
            events.append(MvCalendarEvent(QString::number(m_stories.size()),
                                          dayOf(u"@%1"_qs.arg(m_random.bounded(3))).startOfDay(), true, MvFoto(),
                                          uuids[m_random.bounded(3)], QDateTime()));
            m_stories.append(Story());
            return;
        }
        const qsizetype at = m_random.bounded(events.size());
        MvCalendarEvent &event = events[at];
        const int number = numberOf(event);
        if (number < 0)
            return;
        if (what == 9) { // as read from a file without uuids
            event = MvCalendarEvent(event.description(), event.dateTime(), true, MvFoto(), QUuid::createUuid(), {});
        } else if (what == 8) {
            m_stories[number].removedBy.insert(&program);
            events.removeAt(at);
        } else {
            m_stories[number].changedBy.insert(&program);
            if (what == 7)
                event.setDateTime(event.dateTime().addDays(1));
            else
                event.setEventName(u"%1.%2"_qs.arg(number).arg(++m_renamings));
        }
    }

    /// Merges with the file, writes it.
    static void save(Program &program, MvCalendarEventList &file)
    {
        program.events = MvCalendarEventMerge::threeWay(program.base, program.events, file);
        program.base = program.events;
        file = program.events;
    }

    /// What is wrong with the list, after everybody has read it.
    QString mistakeIn(const MvCalendarEventList &events) const
    {
        QHash<int, int> found;
        QSet<MvCalendarEvent> known;
        for (const MvCalendarEvent &event : events) {
            ++found[numberOf(event)];
            if (known.contains(event))
                return event.description() + u" is there twice"_qs;
            known.insert(event);
        }
        for (int number = 0; number < m_stories.size(); ++number) {
            const Story &story = m_stories.at(number);
            const int count = found.value(number);
            if (count == 0 ? story.mustStay() : story.mustBeGone())
                return u"%1 is %2"_qs.arg(number).arg(count == 0 ? u"lost"_qs : u"back"_qs);
            if (count > 1 && story.isOnce())
                return u"%1 is there %2 times"_qs.arg(number).arg(count);
        }
        return {};
    }

    bool chance(int percent) { return m_random.bounded(100) < percent; }

private:
    static int numberOf(const MvCalendarEvent &event)
    {
        bool isNumber = false;
        const int number = event.description().section(u'.', 0, 0).toInt(&isNumber);
        return isNumber ? number : -1;
    }

    QRandomGenerator m_random;
    QList<Story> m_stories;
    int m_renamings = 0;
};

} // namespace

/// What nobody removed stays, what somebody removed goes, and nothing is there twice.
void tst_MvCalendarEventMerge::anyEditsOfSeveralPrograms()
{
    QFETCH(int, programs);
    for (quint32 seed = 0; seed < 100; ++seed) {
        Model model(seed);
        MvCalendarEventList file = Model::beginning();
        QList<Program> running(programs, {file, file});
        for (int step = 0; step < 60; ++step) {
            for (Program &program : running) {
                model.edit(program);
                if (model.chance(40))
                    Model::save(program, file);
            }
        }
        for (int round = 0; round < 2; ++round) { // at last all know of each other
            for (Program &program : running)
                Model::save(program, file);
        }
        const QString mistake = model.mistakeIn(file);
        QVERIFY2(mistake.isEmpty(), qPrintable(u"seed %1: %2"_qs.arg(seed).arg(mistake)));
        for (const Program &program : running)
            QCOMPARE(QSet<MvCalendarEvent>(program.events.cbegin(), program.events.cend()),
                     QSet<MvCalendarEvent>(file.cbegin(), file.cend()));
    }
}

MV_TEST_MAIN(tst_MvCalendarEventMerge)
#include "tst_MvCalendarEventMerge.moc"
