#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QWidget>

class QCheckBox;
class QDateTimeEdit;

/// The date of an entry, with or without a year. Where the year is unknown (MvCalendarEvent::hasYear()), the field
/// shows and takes day and month alone; a box beside it says so, and lets the user give the year or leave it out.
class MVCALENDAR_EXPORT MvCalendarEventDateEdit : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendarEventDateEdit(QWidget *parent = nullptr);

    QDate date() const;
    void setDate(const QDate &date);

private:
    void showSections();
    void onYearSwitched(bool isUnknown);

    QDateTimeEdit *m_edit;
    QCheckBox *m_unknownBox;
    int m_year = 0; // the last known one, to come back to; 0 when there was none
};
