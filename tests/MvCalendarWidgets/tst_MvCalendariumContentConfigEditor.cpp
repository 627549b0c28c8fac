// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendariumContentConfigEditor.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCore/MvLogger.h"

using namespace Qt::StringLiterals;

namespace {

const MvLocale germany(u"de_DE"_s);

MvCalendariumContentConfig config(const QString &province, int features, const MvLocale &language = germany)
{
    return {QDate(2027, 5, 1), MvCalendariumHolidayConfig(language, province, MvCalendariumFeatures(features))};
}

bool hasHoliday(const MvCalendariumContentConfig &config, const QDate &date, const QString &name)
{
    const MvCalendariumHolidayList holidays = MvCalendariumHolidayCache::instance().holidays(config.moveToDay(date));
    return std::any_of(holidays.cbegin(), holidays.cend(),
                       [&name](const MvCalendariumHoliday &holiday) { return holiday.description() == name; });
}

} // namespace

class tst_MvCalendariumContentConfigEditor : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MvLogger::instance().setSink({}); }

    void roundTrip_data();
    void roundTrip();
    void backToTheWholeCountry();
    void whatIsNotOffered();
    void provinceBoxIsEnabled();
    void monthsThatDoNotExist();
    void changesOfTheUser();
};

void tst_MvCalendariumContentConfigEditor::roundTrip_data()
{
    const MvRows<int, int> row; // given, features
    row("none", 0, 0);
    row("holidays bring colours and vacations", 1, (1 | 2 | 8));
    row("vacations without holidays", 8, 0);
    row("entries", 4, 4);
    row("what has no box is kept", (4 | 32 | 64), (4 | 32 | 64));
}

void tst_MvCalendariumContentConfigEditor::roundTrip()
{
    const auto [given, features] = MvRows<int, int>::current();
    MvCalendariumContentConfigEditor editor;
    MvCalendariumContentConfig before = config(u"BY"_s, given);
    before.setDate(QDate(1999, 12, 24));
    QStringList lines;
    MvLogger::instance().setSink([&lines](const QString &line) { lines.append(line); });
    QSignalSpy changed(&editor, &MvCalendariumContentConfigEditor::onChanged);
    editor.setContentConfig(before);
    QCoreApplication::processEvents(); // the year's change would come late
    QCOMPARE(lines, QStringList());
    QCOMPARE(changed.size(), 0);
    MvCalendariumContentConfig expected = config(u"BY"_s, features);
    expected.setDate(QDate(1999, 12, 1));
    QVERIFY(editor.contentConfig() == expected);
}

void tst_MvCalendariumContentConfigEditor::backToTheWholeCountry()
{
    MvCalendariumContentConfigEditor editor;
    auto *box = editor.findChild<QComboBox *>(u"provinceBox"_s);
    QSignalSpy changed(&editor, &MvCalendariumContentConfigEditor::onChanged);
    const std::function<void()> ways[] = {[box] { QTest::keyClick(box, Qt::Key_Delete); },
                                          [box] { QTest::keyClick(box, Qt::Key_Backspace); },
                                          [box] { box->actions().constFirst()->trigger(); }};
    for (const auto &takeBack : ways) {
        editor.setContentConfig(config(u"BY"_s, 1));
        changed.clear();
        const int regions = box->count();
        for (int round = 0; round < 2; ++round) { // the second time there is nothing to take back
            takeBack();
            QCOMPARE(editor.holidayConfig().province(), QString());
            QCOMPARE(editor.holidayConfig().language(), germany);
            QCOMPARE(changed.count(), 1);
        }
        QCOMPARE(box->count(), regions);
    }
    QVERIFY(!hasHoliday(editor.contentConfig(), QDate(2027, 5, 27), u"Fronleichnam"_s));
}

void tst_MvCalendariumContentConfigEditor::whatIsNotOffered()
{
    MvCalendariumContentConfigEditor editor;
    editor.setContentConfig(config(u"Atlantis"_s, 1));
    QCOMPARE(editor.findChild<QComboBox *>(u"provinceBox"_s)->currentIndex(), -1);
    QCOMPARE(editor.holidayConfig().province(), QString());

    const MvLocale unknown(u"is_IS"_s);
    QVERIFY(!editor.availableLanguages().contains(unknown));
    editor.setContentConfig(config(QString(), 1, unknown));
    QCOMPARE(editor.findChild<QComboBox *>(u"languageBox"_s)->currentIndex(), -1);
    QCOMPARE(editor.holidayConfig().language(), unknown); // kept until the user chooses
    QCOMPARE(editor.findChild<QComboBox *>(u"provinceBox"_s)->count(), 0);
}

void tst_MvCalendariumContentConfigEditor::provinceBoxIsEnabled()
{
    MvCalendariumContentConfigEditor editor;
    auto *province = editor.findChild<QComboBox *>(u"provinceBox"_s);
    auto *holidays = editor.findChild<QCheckBox *>(u"holidayCheckBox"_s);
    int countWithRegions = 0;
    for (const MvLocale &language : editor.availableLanguages()) {
        const bool hasRegions = MvCalendariumHolidayCache::instance().availableProvinces(language).size() > 1;
        countWithRegions += hasRegions;
        editor.setContentConfig(config(QString(), 0, language));
        QVERIFY(!province->isEnabled());
        QTest::keyClick(holidays, Qt::Key_Space);
        QCOMPARE(province->isEnabled(), hasRegions);
        QTest::keyClick(holidays, Qt::Key_Space);
        QVERIFY(!province->isEnabled());
    }
    QVERIFY(countWithRegions > 1);
}

void tst_MvCalendariumContentConfigEditor::monthsThatDoNotExist()
{
    MvCalendariumContentConfigEditor editor;
    editor.setMonth(6);
    for (const int month : {-1, 0, 13, 14}) {
        editor.setMonth(month);
        QCOMPARE(editor.month(), 6);
    }
    editor.setStartDate(QDate());
    QCOMPARE(editor.month(), 6);
    QCOMPARE(editor.year(), MvDateRange::createDefaultCalendarStart().year());
}

void tst_MvCalendariumContentConfigEditor::changesOfTheUser()
{
    MvCalendariumContentConfigEditor editor;
    editor.setContentConfig(config(u"BY"_s, 1));
    QStringList lines;
    MvLogger::instance().setSink([&lines](const QString &line) { lines.append(line); });
    QSignalSpy changed(&editor, &MvCalendariumContentConfigEditor::onChanged);
    const auto expect = [&](const QStringList &expected) {
        const bool isExpected = lines == expected && changed.size() == 1;
        if (!isExpected)
            qDebug() << lines << changed.size();
        lines.clear();
        changed.clear();
        return isExpected;
    };
    const QString line = u"changeFeature NAME:%1 FROM:%2 TO:%3"_s;
    QTest::keyClick(editor.findChild<QCheckBox *>(u"personalEntriesCheckBox"_s), Qt::Key_Space);
    QVERIFY(expect({line.arg(u"entries"_s, u"holidays,holidayColors,schoolVacations"_s,
                             u"holidays,holidayColors,entries,schoolVacations"_s)}));
    QTest::keyClick(editor.findChild<QComboBox *>(u"monthBox"_s), Qt::Key_Down);
    QVERIFY(expect({line.arg(u"month"_s, u"5"_s, u"6"_s)}));
    QTest::keyClick(editor.findChild<QSpinBox *>(u"yearBox"_s), Qt::Key_Up);
    QCoreApplication::processEvents();
    QVERIFY(expect({line.arg(u"year"_s, u"2027"_s, u"2028"_s)}));
    QTest::keyClicks(editor.findChild<QComboBox *>(u"languageBox"_s), u"Öst"_s);
    QVERIFY(expect({line.arg(u"language"_s, u"de_DE"_s, u"de_AT"_s), line.arg(u"province"_s, u"BY"_s, QString())}));
    QTest::keyClick(editor.findChild<QCheckBox *>(u"holidayCheckBox"_s), Qt::Key_Space);
    QVERIFY(expect({line.arg(u"entries"_s, u"holidays,holidayColors,entries,schoolVacations"_s, u"entries"_s)}));
}

MV_WIDGET_TEST_MAIN(tst_MvCalendariumContentConfigEditor)
#include "tst_MvCalendariumContentConfigEditor.moc"
