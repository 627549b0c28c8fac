// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QSpinBox;

/// Asks by how many years and days entries are to move, and shows what becomes of the first of them. It changes
/// nothing itself and deletes itself when it is closed.
class MVCALENDARWIDGETS_EXPORT MvEntryShiftDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int mostYears = 100;
    static constexpr int mostDays = 366;

    MvEntryShiftDialog(const MvCalendarEventList &events, QWidget *parent = nullptr);
    ~MvEntryShiftDialog() override;

    const MvCalendarEventList &events() const { return m_events; }
    int years() const;
    int days() const;

private:
    QSpinBox *createBox(const QString &objectName, int most);
    void showExample();

    MvCalendarEventList m_events;
    QSpinBox *m_years;
    QSpinBox *m_days;
    QLabel *m_example;
    QPushButton *m_move;
};
