// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPageRange.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

MvPageRange::Pages MvPageRange::parse(const QString &text, int pageCount)
{
    static const QRegularExpression form(u"^\\s*(\\d{1,4})\\s*(?:[-–]\\s*(\\d{1,4})\\s*)?$"_s);
    QSet<int> pages;
    const QStringList parts =
        text.trimmed().isEmpty() ? QStringList{u"1-%1"_s.arg(pageCount)} : text.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QRegularExpressionMatch match = form.match(part);
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        if (!match.hasMatch())
            return {{tr("„%1“ sind keine Seiten; schreiben Sie zum Beispiel 1-3, 5").arg(part.trimmed()), {}}, {}};
        if (first < 1 || last > pageCount || first > last)
            return {{tr("„%1“: es gibt die Seiten 1 bis %2").arg(part.trimmed()).arg(pageCount), {}}, {}};
        for (int page = first; page <= last; ++page)
            pages.insert(page - 1);
    }
    QList<int> sorted = pages.values();
    std::sort(sorted.begin(), sorted.end());
    return {{sorted.isEmpty() ? tr("keine Seite gewählt") : QString(), {}}, sorted};
}
