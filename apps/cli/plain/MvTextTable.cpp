// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvTextTable.h"

#include <algorithm>

void MvTextTable::print(QTextStream &stream) const
{
    QList<qsizetype> widths;
    for (const QStringList &row : m_rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    for (const QStringList &row : m_rows) {
        QString line;
        for (qsizetype column = 0; column < row.size(); ++column)
            line += row[column].leftJustified(widths[column] + 2);
        while (line.endsWith(u' '))
            line.chop(1);
        stream << line << '\n';
    }
}
