#include "MvTest.h"

#include "MvCalendar/MvCalendarEventMerge.h"

class tst_MvCalendarEventMerge : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void joins_data();
    void joins();
    void threeWay_data();
    void threeWay();
    void laterChangeWins();
};

/// Entries from a text such as "a b:B -x": uuid a with the same name, uuid b with the name B, a null uuid named x.
static MvCalendarEventList list(const QString &text)
{
    MvCalendarEventList events;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const bool isNameless = word.startsWith(u'-');
        const QString id = isNameless ? QString() : word.section(u':', 0, 0);
        const QString name = isNameless ? word.mid(1) : word.section(u':', -1);
        const QUuid uuid = isNameless ? QUuid() : QUuid::createUuidV5(QUuid(), id);
        events.append(MvCalendarEvent(name, QDate(2000, 1, 1).startOfDay(), true, MvFoto(), uuid, QDateTime()));
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
}

void tst_MvCalendarEventMerge::threeWay()
{
    QFETCH(QString, base);
    QFETCH(QString, mine);
    QFETCH(QString, theirs);
    QTEST(names(MvCalendarEventMerge::threeWay(list(base), list(mine), list(theirs))), "result");
}

void tst_MvCalendarEventMerge::laterChangeWins()
{
    const MvCalendarEventList base = list(u"a"_qs);
    MvCalendarEventList early = list(u"a:early"_qs);
    QTest::qWait(5);
    const MvCalendarEventList late = list(u"a:late"_qs);
    QCOMPARE(names(MvCalendarEventMerge::threeWay(base, early, late)), u"late"_qs);
    QCOMPARE(names(MvCalendarEventMerge::threeWay(base, late, early)), u"late"_qs);
}

MV_TEST_MAIN(tst_MvCalendarEventMerge)
#include "tst_MvCalendarEventMerge.moc"
