// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProductBase/MvCalendariumContentConfig.h"

class MvCalendariumContentConfigEditor;
class MvCalendarPage;
class MvPageSetupEditor;
class QCheckBox;
class QLabel;

/// What the pages show: holidays of which country and region, personal entries, calendar weeks; and the calendar's
/// months and paper.
class MvContentPanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvContentPanel(MvPageEdits *edits, QWidget *parent);

Q_SIGNALS:
    /// Somebody wants to choose which groups of entries are shown, and how they read.
    void groupsRequested();

protected:
    void showPage() override;

private:
    QCheckBox *createFeatureBox(const QString &objectName, const QString &text, int feature);
    void onContentChanged();
    void onFeatureClicked(int feature, bool on);
    void onSetupChanged();
    void showCalendarWeeks(const MvCalendarPage &page);
    void showVacationHint(const MvCalendariumHolidayConfig &holidays);
    void applyHolidays(const MvCalendariumHolidayConfig &before, const MvCalendariumHolidayConfig &after);

    MvCalendariumContentConfigEditor *m_content;
    QCheckBox *m_calendarWeeks;
    QCheckBox *m_publicHolidaysOnly;
    QCheckBox *m_vacationNamesDaily;
    QLabel *m_vacationHint;
    MvPageSetupEditor *m_setup;
    MvCalendariumContentConfig m_shown; // as the editor gives it back without an edit
    Qt::CheckState m_shownHolidays = Qt::Unchecked;
};
