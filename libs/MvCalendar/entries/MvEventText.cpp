// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventText.h"

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvEventGroup.h"

#include "MvProductBase/MvEntryDisplay.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString agePlace = u"%age"_s;
const QString roundPlace = u"%round"_s;
const QString roundMark = u"!"_s; // as people write it: it needs no other type, and every font has it

} // namespace

bool MvEventText::isShown(const MvCalendarEvent &event, const MvEntryDisplay &display)
{
    if (display.hiddenGroups.isEmpty())
        return true;
    const QStringList groups = event.groups();
    return groups.isEmpty() || !std::all_of(groups.cbegin(), groups.cend(), [&display](const QString &id) {
               return display.hiddenGroups.contains(id);
           });
}

QString MvEventText::filled(const QString &pattern, const MvCalendarEvent &event, const QDate &start)
{
    const int years = event.yearsAt(start);
    const bool needsYears = pattern.contains(u"%age") || pattern.contains(u"%year") || marksRound(pattern);
    if (!pattern.contains(u"%name") || (needsYears && years == 0))
        return event.description();
    // in one pass: a name may hold anything
    static const QRegularExpression place(u"%(name|age|year|round)"_s);
    QString text;
    qsizetype end = 0;
    for (auto it = place.globalMatch(pattern); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        text += QStringView(pattern).mid(end, match.capturedStart() - end);
        if (match.capturedView(1) == u"name")
            text += event.description();
        else if (match.capturedView(1) == u"round")
            text += isRound(years) ? roundMark : QString();
        else
            text += QString::number(match.capturedView(1) == u"age" ? years : event.dateTime().date().year());
        end = match.capturedEnd();
    }
    return text.append(QStringView(pattern).mid(end));
}

bool MvEventText::isRound(int years)
{
    constexpr int decade = 10;
    constexpr int quarter = 25; // of a century
    return years > 0 && (years % decade == 0 || years % quarter == 0);
}

bool MvEventText::marksRound(const QString &pattern)
{
    return pattern.contains(roundPlace);
}

QString MvEventText::withRoundMarked(const QString &pattern, bool isMarked)
{
    QString marked = pattern;
    marked.remove(roundPlace);
    return isMarked ? marked.replace(agePlace, agePlace + roundPlace) : marked;
}

MvEventText MvEventText::of(const MvCalendarEvent &event, const QDate &start, const MvEventGroupList &groups,
                            const MvEntryDisplay &display)
{
    MvEventText result;
    result.start = start;
    result.end = start.addDays(event.dayCount() - 1);
    QString pattern = display.text;
    QString symbol;
    bool hasPattern = false;
    QList<const MvEventGroup *> shown;
    const QStringList ids = event.groups();
    for (const QString &id : ids) {
        const MvEventGroup *group = display.hiddenGroups.contains(id) ? nullptr : groups.find(id);
        if (!group)
            continue;
        shown.append(group);
        if (!result.color.isValid())
            result.color = group->color;
        if (symbol.isEmpty())
            symbol = group->symbol;
        if (!hasPattern && !group->entryText.isEmpty()) {
            hasPattern = true;
            pattern = group->entryText;
        }
    }
    const bool showsTime = display.showTimes && event.time().isValid();
    const QString time = showsTime ? event.time().toString(u"HH:mm"_s) + u' ' : QString();
    const auto written = [&](const QString &form, const QString &sign) {
        const QString text = form.isEmpty() ? event.description() : filled(form, event, start);
        return (sign.isEmpty() ? QString() : sign + u' ') + time + text;
    };
    result.text = written(pattern, symbol);
    for (const MvEventGroup *group : std::as_const(shown)) {
        const QString &form = group->entryText.isEmpty() ? pattern : group->entryText;
        result.groups.append(
            {group->name, group->color, shown.size() == 1 ? result.text : written(form, group->symbol)});
    }
    return result;
}
