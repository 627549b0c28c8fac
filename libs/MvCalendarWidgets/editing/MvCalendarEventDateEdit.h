// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QDate>
#include <QWidget>

class MvDateEdit;
class QCheckBox;
class QLabel;

/// The date of an entry, with or without a year. Where the year is unknown (MvCalendarEvent::hasYear()), the field
/// shows day and month alone; a box beside it says so, and lets the user give the year or leave it out. Whoever types a
/// year knows it.
///
/// Below, a line says in words which date the text means, or why it is none.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventDateEdit : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendarEventDateEdit(QWidget *parent = nullptr);

    QDate date() const;
    void setDate(const QDate &date);
    /// Shows a date as if the user had typed it.
    void showDate(const QDate &date);

    /// Takes the typed text over. False, with the keyboard in the field, when it is no date.
    bool takeText();
    /// Whether it shows another date than the one set last, or a text to be taken.
    bool isTouched() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void reserveRoom();
    void showSections();
    void onYearSwitched(bool isUnknown);
    void onMeaningChanged();

    MvDateEdit *m_edit;
    QCheckBox *m_unknownBox;
    QLabel *m_hint;
    QDate m_date;   // as it was set
    QDate m_shown;  // what the field made of it; not the same where it cannot show such a year
    int m_year = 0; // the last known one, to come back to; 0 when there was none
};
