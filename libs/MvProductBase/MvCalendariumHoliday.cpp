#include "MvProductBase/MvCalendariumHoliday.h"

MvCalendariumHoliday::MvCalendariumHoliday(const MvCalendariumHolidayType &type, const QDate &date,
                                           const QString &description)
    : m_type(type)
    , m_date(date)
    , m_description(description)
{}
