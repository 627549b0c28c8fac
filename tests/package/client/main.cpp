// A program of somebody else: links the installed library and asks it for something only its binary can answer.
#include "MvCalendar/MvCalendariumType.h"
#include "MvCore/MvSpaceMagnitude.h"

#include <QTextStream>

int main()
{
    QTextStream(stdout) << MvSpaceMagnitude::ofPage(2970, 2100).encodeCSV() << ' '
                        << MvCalendariumType(QStringLiteral("CALENDAR_ONE_WEEK_PER_ROW")).toInt() << '\n';
    return 0;
}
