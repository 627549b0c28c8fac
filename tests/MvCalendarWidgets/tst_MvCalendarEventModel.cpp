// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvWidgetDriver.h"

#include "MvCalendar/MvCalendarEventModel.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvUndoController.h"

using MvEntries::entry;

namespace {

QString described(const MvCalendarEvent &event)
{
    return u"%1 %2%3"_qs.arg(event.dateTime().toString(u"yyyy-MM-dd"), event.description(),
                             event.storedRecurrent() ? QString() : u" once"_qs);
}

QStringList described(const MvCalendarEventList &events)
{
    QStringList lines;
    for (const MvCalendarEvent &event : events)
        lines.append(described(event));
    lines.sort();
    return lines;
}

QString names(const MvCalendarEventModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row, MvCalendarEventModel::NameColumn).data().toString());
    return names.join(u' ');
}

/// Gives indexes beyond the rows, too.
class TestModel : public MvCalendarEventModel
{
public:
    QModelIndex anyIndex(int row, int column) const { return createIndex(row, column); }
};

/// Bends the two habits of the model that Qt's tester takes no table with: rows below cells, and pictures to display.
class TestableModel : public MvCalendarEventModel
{
public:
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : MvCalendarEventModel::rowCount(parent);
    }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        const QVariant value = MvCalendarEventModel::data(index, role);
        return value.metaType() == QMetaType::fromType<QImage>() ? QVariant() : value;
    }
};

const MvCalendarEventList &threeEntries()
{
    static const MvCalendarEventList entries{entry(u"Xaver"_qs, QDate(1950, 12, 31)),
                                             entry(u"Anna"_qs, QDate(2004, 2, 29)),
                                             entry(u"Moritz"_qs, QDate(1999, 3, 1), {}, false)};
    return entries;
}

} // namespace

class tst_MvCalendarEventModel : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void mirrorsTheRegistry();
    void cells_data();
    void cells();
    void edits_data();
    void edits();
    void editsFotos();
    void movedEntriesKeepTheirEdits();
    void sorts_data();
    void sorts();
    void sortsSharedDays();
    void removesRows_data();
    void removesRows();
    void removalWaitsForSave();
    void modelTester();

private:
    static MvCalendarEventRegistry &registry() { return MvCalendarEventRegistry::instance(); }
    static MvUndoController &undo() { return MvUndoController::instance(); }
    static QStringList onDisk() { return described(MvCalendarEventRegistry().activeEventList()); }
    static QStringList allThree()
    {
        return {u"1950-12-31 Xaver"_qs, u"1999-03-01 Moritz once"_qs, u"2004-02-29 Anna"_qs};
    }
};

void tst_MvCalendarEventModel::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_qs));
    undo().clear();
    registry().setEvents(threeEntries());
}

void tst_MvCalendarEventModel::mirrorsTheRegistry()
{
    MvCalendarEventModel model;
    QCOMPARE(model.rowCount(), 0);
    QSignalSpy spy(&model, &QAbstractItemModel::modelReset);
    model.load();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(names(model), u"Anna Moritz Xaver"_qs); // by month and day, whatever the year
    registry().setEvents({entry(u"Neu"_qs, QDate(2026, 7, 1))});
    QCOMPARE(spy.count(), 2);
    QCOMPARE(names(model), u"Neu"_qs);
    QCOMPARE(model.rowCount(model.index(0, 0)), 1); // whatever the parent
    QCOMPARE(model.columnCount(model.index(0, 0)), 4);
    QCOMPARE(model.flags(model.index(0, MvCalendarEventModel::NameColumn)), Qt::NoItemFlags);
}

void tst_MvCalendarEventModel::cells_data()
{
    const MvRows<int, int, int, QVariant> row; // row, column, role, value
    const QVariant anna = QVariant::fromValue(threeEntries().at(1));
    const QVariant none = QVariant::fromValue(MvCalendarEvent());
    row("no photo", 0, 0, int(Qt::DisplayRole), QVariant(QImage()));
    row("path of no photo", 0, 0, int(Qt::EditRole), QVariant(QString()));
    row("date", 0, 1, int(Qt::DisplayRole), QVariant(QDate(2004, 2, 29)));
    row("read out", 0, 1, int(Qt::AccessibleTextRole), QVariant(u"29.02.2004"_qs));
    row("entry", 0, 3, int(Qt::DisplayRole), anna);
    row("tool tip of the name", 0, 2, int(Qt::ToolTipRole), QVariant(u"Anna"_qs));
    row("photo beyond the rows", 3, 0, int(Qt::DisplayRole), QVariant());
    row("name beyond the rows", 3, 2, int(Qt::DisplayRole), QVariant(QString()));
    row("entry beyond the rows", 3, 3, int(Qt::UserRole), none);
    row("entry before the rows", -2, 3, int(Qt::UserRole), none);
}

void tst_MvCalendarEventModel::cells()
{
    const auto [row, column, role, value] = MvRows<int, int, int, QVariant>::current();
    TestModel model;
    model.load();
    const QVariant found = model.data(model.anyIndex(row, column), role);
    QCOMPARE(found, value);
    if (found.metaType() == QMetaType::fromType<MvCalendarEvent>())
        QCOMPARE(found.value<MvCalendarEvent>().uuid(), model.calendarEvent(model.anyIndex(row, 0)).uuid());
}

void tst_MvCalendarEventModel::edits_data()
{
    // of the row of Moritz; an empty result stands for no change
    const MvRows<int, int, QVariant, QStringList> row; // row, column, value, result
    const QString anna = u"2004-02-29 Anna"_qs;
    const QString xaver = u"1950-12-31 Xaver"_qs;
    row("name", 1, 2, QVariant(u"Max"_qs), QStringList{xaver, u"1999-03-01 Max once"_qs, anna});
    row("the same name", 1, 2, QVariant(u"Moritz"_qs), QStringList());
    row("a name over several lines", 1, 2, QVariant(u"\tMax\nund  Moritz "_qs),
        QStringList{xaver, u"1999-03-01 Max und Moritz once"_qs, anna});
    row("no name", 1, 2, QVariant(QString()), QStringList());
    row("nothing to be seen", 1, 2, QVariant(u"\u0007 \u200b"_qs), QStringList());
    row("date", 1, 1, QVariant(QDate(1999, 1, 2)), QStringList{xaver, u"1999-01-02 Moritz once"_qs, anna});
    row("no date", 1, 1, QVariant(u"morgen"_qs), QStringList());
    row("an entry makes it recurrent", 1, 3, QVariant::fromValue(threeEntries().at(2)),
        QStringList{xaver, u"1999-03-01 Moritz"_qs, anna});
    row("recurrent already", 0, 3, QVariant::fromValue(threeEntries().at(2)), QStringList());
    row("no photo as before", 1, 0, QVariant(QString()), QStringList());
    row("beyond the rows", 3, 2, QVariant(u"Max"_qs), QStringList());
    row("before the rows", -1, 2, QVariant(u"Max"_qs), QStringList());
}

void tst_MvCalendarEventModel::edits()
{
    const auto [row, column, value, result] = MvRows<int, int, QVariant, QStringList>::current();
    const bool isChange = !result.isEmpty();
    TestModel model;
    model.load();

    QCOMPARE(model.setData(model.anyIndex(row, column), value), isChange);
    QCOMPARE(undo().stack()->count(), int(isChange));
    QCOMPARE(onDisk(), isChange ? result : allThree());
    QCOMPARE(model.rowCount(), isChange ? result.size() : 3);

    undo().undo();
    QCOMPARE(described(registry().activeEventList()), allThree());
    QCOMPARE(onDisk(), allThree());
    QCOMPARE(names(model), u"Anna Moritz Xaver"_qs);
    undo().redo();
    QCOMPARE(onDisk(), isChange ? result : allThree());
}

void tst_MvCalendarEventModel::editsFotos()
{
    const QTemporaryDir folder;
    QVERIFY(MvWidgetDriver::writeFoto(folder.filePath(u"rot.png"_qs), Qt::red));
    MvCalendarEventModel model;
    model.load();
    const QModelIndex anna = model.index(0, MvCalendarEventModel::FotoColumn);

    QVERIFY(model.setData(anna, folder.filePath(u"rot.png"_qs)));
    const QString own = anna.data(Qt::EditRole).toString();
    QCOMPARE(QFileInfo(own).dir(), MvCalendarEvent::imageDirectory());
    QCOMPARE(anna.data().value<QImage>().size(), QSize(40, 30));
    QVERIFY(!model.setData(anna, own)); // the path that the cell gave

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"fehlt\\.png“ kann nicht gelesen werden"_qs));
    QVERIFY(!model.setData(anna, folder.filePath(u"fehlt.png"_qs)));
    QCOMPARE(anna.data(Qt::EditRole).toString(), own); // not lost

    QVERIFY(model.setData(anna, QString()));
    QVERIFY(anna.data().value<QImage>().isNull());
    undo().undo();
    QCOMPARE(anna.data(Qt::EditRole).toString(), own);
    undo().undo();
    QCOMPARE(anna.data(Qt::EditRole).toString(), QString());
}

void tst_MvCalendarEventModel::movedEntriesKeepTheirEdits()
{
    MvCalendarEventModel model;
    MvCalendarEventModel second;
    model.load();
    QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(model.setData(model.index(0, MvCalendarEventModel::DateColumn), QDate(2005, 6, 1)));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(names(model), u"Moritz Anna Xaver"_qs);
    QCOMPARE(names(second), names(model));
    QCOMPARE(undo().stack()->undoText(), u"set calendar event from Anna to Anna"_qs);
}

void tst_MvCalendarEventModel::sorts_data()
{
    const MvRows<int, Qt::SortOrder, QString> row; // column, order, sorted
    row("date, smallest first", 1, Qt::DescendingOrder, u"Anna Moritz Xaver"_qs);
    row("date, largest first", 1, Qt::AscendingOrder, u"Xaver Moritz Anna"_qs);
    row("name, smallest first", 2, Qt::DescendingOrder, u"Anna Moritz Xaver"_qs);
    row("name, largest first", 2, Qt::AscendingOrder, u"Xaver Moritz Anna"_qs);
    // every entry counts as recurrent: what remains is the stored flag, then the name
    row("recurrence, smallest first", 3, Qt::DescendingOrder, u"Moritz Anna Xaver"_qs);
    row("recurrence, largest first", 3, Qt::AscendingOrder, u"Xaver Anna Moritz"_qs);
    row("photo, which only begins a reset", 0, Qt::AscendingOrder, u"Anna Moritz Xaver"_qs);
}

void tst_MvCalendarEventModel::sorts()
{
    const auto [column, order, sorted] = MvRows<int, Qt::SortOrder, QString>::current();
    MvCalendarEventModel model;
    model.load();
    QSignalSpy begun(&model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy ended(&model, &QAbstractItemModel::modelReset);
    model.sort(column, order);
    QCOMPARE(begun.count(), 1);
    QCOMPARE(ended.count(), column == MvCalendarEventModel::FotoColumn ? 0 : 1);
    QCOMPARE(names(model), sorted);
}

void tst_MvCalendarEventModel::sortsSharedDays()
{
    MvCalendarEventList events;
    for (int i = 0; i < 60; ++i) // three days of four years, names in no order
        events.append(entry(QString::number((i * 37) % 60), QDate(2000 + i % 4, 5, 1 + i % 3)));
    registry().setEvents(events);
    MvCalendarEventModel model;
    model.load();
    for (const Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
        model.sort(MvCalendarEventModel::DateColumn, order);
        const auto isMisplaced =
            order == Qt::DescendingOrder ? MvCalendarEvent::greaterThanDate : MvCalendarEvent::lessThanDate;
        for (int first = 0; first < model.rowCount(); ++first) {
            for (int second = first + 1; second < model.rowCount(); ++second)
                QVERIFY(!isMisplaced(model.calendarEvent(model.index(first, 0)),
                                     model.calendarEvent(model.index(second, 0))));
        }
    }
}

void tst_MvCalendarEventModel::removesRows_data()
{
    const MvRows<QList<int>, bool, QString> row; // rows, isRemoved, remaining
    row("each once", QList<int>{3, 1, 3}, true, u"A C E"_qs);
    row("first and last", QList<int>{0, 4}, true, u"B C D"_qs);
    row("all", QList<int>{4, 3, 2, 1, 0}, true, QString());
    row("none", QList<int>(), true, u"A B C D E"_qs);
    row("some do not exist", QList<int>{-1, 2, 5}, false, u"A B D E"_qs);
}

void tst_MvCalendarEventModel::removesRows()
{
    const auto [rows, isRemoved, remaining] = MvRows<QList<int>, bool, QString>::current();
    MvCalendarEventList events;
    for (int i = 0; i < 5; ++i)
        events.append(entry(QChar(u'A' + i), QDate(2026, 1, 1 + i)));
    registry().setEvents(events);
    MvCalendarEventModel model;
    model.load();
    QCOMPARE(model.removeRows(rows), isRemoved);
    QCOMPARE(names(model), remaining);
}

void tst_MvCalendarEventModel::removalWaitsForSave()
{
    MvCalendarEventModel model;
    model.load();
    QSignalSpy spy(&model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(!model.removeRows(2, 2));
    QCOMPARE(spy.count(), 0);
    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(names(model), u"Xaver"_qs);
    QCOMPARE(onDisk(), allThree());
    model.save();
    QCOMPARE(onDisk(), QStringList{u"1950-12-31 Xaver"_qs});
    QCOMPARE(names(model), u"Xaver"_qs);
}

void tst_MvCalendarEventModel::modelTester()
{
    TestableModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.load();
    QVERIFY(model.setData(model.index(0, 1), QDate(2004, 12, 31)));
    QVERIFY(model.setData(model.index(2, 2), u"Anton"_qs));
    undo().undo();
    undo().undo();
    undo().redo();
    model.sort(MvCalendarEventModel::NameColumn, Qt::AscendingOrder);
    QVERIFY(model.removeRows(QList<int>{2, 0}));
    model.save();
    QVERIFY(model.removeRows(0, 1));
    registry().setEvents(threeEntries());
    QCOMPARE(names(model), u"Anna Moritz Xaver"_qs);
}

MV_TEST_MAIN(tst_MvCalendarEventModel)
#include "tst_MvCalendarEventModel.moc"
