// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"
#include "MvProductBase/MvCalendariumContentConfig.h"

#include <QList>
#include <QWidget>

class MvMouseWheelEventFilter;
class MvSpinBox;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;

/// What a calendar shows besides its dates: holidays, personal entries, the country and region whose holidays they
/// are, and the month it starts with.
///
/// A country without a chosen region is meant as a whole: the first item of the regions, to which the delete key leads
/// back, too.
///
/// Loading a configuration emits nothing and logs nothing.
class MVCALENDARWIDGETS_EXPORT MvCalendariumContentConfigEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendariumContentConfigEditor(QWidget *parent = nullptr, bool withTopSpacer = false);

    /// What has no control here, as week texts and further features, is kept and comes back with contentConfig().
    void setContentConfig(const MvCalendariumContentConfig &config);
    MvCalendariumContentConfig contentConfig() const;
    void setHolidayConfig(const MvCalendariumHolidayConfig &config);
    /// Its province is the code of the chosen region, empty when there is none.
    MvCalendariumHolidayConfig holidayConfig() const;

    /// The first day of the month.
    QDate startDate() const;
    void setStartDate(const QDate &date);
    int month() const; // 1 to 12
    /// Other numbers change nothing.
    void setMonth(int month);
    int year() const;
    void setYear(int year);
    /// The name of the chosen region as it is shown: "Bayern"; empty for the whole country.
    QString province() const;

    /// Whether holidays are named; a mixed state that nobody has touched stays as it was given.
    bool holidayChecked() const;
    /// What the check box shows: partially checked while only some of holidays, their colours and vacations are asked.
    Qt::CheckState holidayState() const;
    void setHolidayChecked(bool checked);
    bool personalEntriesChecked() const;
    void setPersonalEntriesChecked(bool checked);
    void setCheckboxesChecked(bool holidays, bool personal);
    void setCheckboxesVisible(bool holidays, bool personal);
    void setDateConfigurationVisible(bool visible);
    /// Shows so many letters of countries and regions at least, and more where there is room.
    void setNameLength(int letters);
    void reset();

    QList<MvLocale> availableLanguages() const;
    /// No country is chosen when the language is not available.
    void setLanguage(const MvLocale &language);
    /// Offers the regions of the country. The province is a code or a name; none is chosen when the country has no
    /// such region.
    void setProvince(const MvLocale &language, const QString &province);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void onChanged();

public Q_SLOTS:
    void languageChanged(int index);
    void onStateChangedCheckBox(int state);
    /// Writes a line for everything that differs from what was logged last.
    void logChanges();

private:
    QWidget *createCheckBoxes();
    QWidget *createDateBox(bool withTopSpacer);
    void createYearAndMonthBox();
    void createLanguageAndProvinceBox();
    QLabel *addCaptioned(QGridLayout *grid, int row, const QString &caption, QComboBox *box);
    void setUpWholeCountry();
    void showHolidayState();
    void captionProvinces(const MvLocale &language);
    void enableProvinceBox();
    void noteAsLogged();

    MvMouseWheelEventFilter *m_wheelFilter;
    QWidget *m_dateBox = nullptr;
    QComboBox *m_monthBox = nullptr;
    MvSpinBox *m_yearBox = nullptr;
    QComboBox *m_languageBox = nullptr;
    QComboBox *m_provinceBox = nullptr;
    QLabel *m_provinceLabel = nullptr;
    QCheckBox *m_holidayBox = nullptr;
    QCheckBox *m_entriesBox = nullptr;
    QList<MvLocale> m_languages; // by index of the language box
    MvCalendariumContentConfig m_given;
    MvCalendariumContentConfig m_lastLogged;
    bool m_loggingEnabled = false;
};
