// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvHtmlTableSkeleton.h"

#include <QColor>
#include <QString>

using namespace Qt::StringLiterals;

QString MvHtmlTableSkeleton::table(int spacing, int padding)
{
    return u"<table width=\"100%\" height=\"100%\" cellpadding=\"%1\" cellspacing=\"%2\">%3</table>"_s.arg(
        QString::number(padding), QString::number(spacing), u"%3"_s);
}

QString MvHtmlTableSkeleton::row()
{
    return u"<tr>%1</tr"_s;
}

QString MvHtmlTableSkeleton::cell(int rowSpan, int colSpan, const QColor &color, const QString &width)
{
    const auto attribute = [](bool isSet, const QString &pattern, const QString &value) {
        return isSet ? pattern.arg(value) : QString();
    };
    return u"<td %1 %2 %3 %4 >%5</td>"_s.arg(attribute(rowSpan > 1, u"rowspan=\"%1\""_s, QString::number(rowSpan)),
                                             attribute(colSpan > 1, u"colspan=\"%1\""_s, QString::number(colSpan)),
                                             attribute(color.isValid(), u"bgcolor=\"%1\""_s, color.name()),
                                             attribute(!width.isEmpty(), u"width=\"%1\""_s, width), u"%5"_s);
}
