// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvColorRuns.h"

#include <algorithm>

namespace {

/// Not what comes and goes when a text is divided into lines.
bool isCounted(QChar c)
{
    return !c.isSpace() && c != u'-' && c != QChar(0x2010) && c.category() != QChar::Other_Format;
}

qsizetype lengthOf(const QString &text)
{
    return std::count_if(text.cbegin(), text.cend(), isCounted);
}

} // namespace

QList<MvColorRuns::Line> MvColorRuns::of(const QStringList &lines, const QStringList &texts,
                                         const QList<QColor> &colors)
{
    QList<Line> runs;
    qsizetype text = 0;
    qsizetype left = lengthOf(texts.value(0));
    const auto color = [&] { return colors.value(text, colors.isEmpty() ? QColor() : colors.constLast()); };
    for (const QString &line : lines) {
        Line run;
        for (const QChar c : line) {
            const bool isNext = isCounted(c) && left <= 0 && c != u',' && text + 1 < texts.size();
            if (isNext)
                left = lengthOf(texts.at(++text));
            if (run.isEmpty() || run.constLast().color != color())
                run.append({0, color()});
            ++run.last().length;
            left -= isCounted(c) && (left > 0 || c != u',') ? 1 : 0;
        }
        // blanks before a text go with it: where they stand at the end of a run their width is not counted
        for (qsizetype i = 0, end = 0; i + 1 < run.size(); ++i) {
            end += run.at(i).length;
            while (run.at(i).length > 1 && line.at(end - 1).isSpace()) {
                --run[i].length;
                ++run[i + 1].length;
                --end;
            }
        }
        runs.append(run);
    }
    return runs;
}
