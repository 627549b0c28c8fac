// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventGroup.h"

#include <algorithm>

MvEventGroup MvEventGroup::named(const QString &name)
{
    MvEventGroup group;
    group.name = name.simplified();
    for (const QChar c : group.name.toCaseFolded().normalized(QString::NormalizationForm_C))
        group.id.append(c.isLetterOrNumber() ? c : QChar(u'-')); // ids stand in lists with commas
    return group;
}

const MvEventGroup *MvEventGroupList::find(const QString &id) const
{
    const auto found = std::find_if(cbegin(), cend(), [&id](const MvEventGroup &group) { return group.id == id; });
    return found == cend() ? nullptr : &*found;
}

const MvEventGroup *MvEventGroupList::findName(const QString &name) const
{
    const QString wanted = name.simplified();
    const auto found = std::find_if(cbegin(), cend(), [&wanted](const MvEventGroup &group) {
        return group.name.compare(wanted, Qt::CaseInsensitive) == 0;
    });
    return found == cend() ? nullptr : &*found;
}

QString MvEventGroupList::idOfName(const QString &name)
{
    if (const MvEventGroup *known = findName(name))
        return known->id;
    MvEventGroup group = MvEventGroup::named(name);
    if (!group.isValid())
        return {};
    const QString wanted = group.id;
    for (int n = 2; find(group.id); ++n) // a group that was renamed keeps its id
        group.id = QStringLiteral("%1-%2").arg(wanted).arg(n);
    append(group);
    return group.id;
}

void MvEventGroupList::put(const MvEventGroup &group)
{
    if (!group.isValid())
        return;
    const auto known =
        std::find_if(begin(), end(), [&group](const MvEventGroup &other) { return other.id == group.id; });
    if (known == end())
        append(group);
    else
        *known = group;
}

MvEventGroupList MvEventGroupList::merged(const MvEventGroupList &base, const MvEventGroupList &mine,
                                          const MvEventGroupList &theirs)
{
    MvEventGroupList result;
    for (const MvEventGroup &group : mine) {
        const MvEventGroup *before = base.find(group.id);
        const MvEventGroup *other = theirs.find(group.id);
        const bool isChangedHere = !before || !(*before == group);
        if (other)
            result.append(isChangedHere ? group : *other);
        else if (isChangedHere)
            result.append(group); // else it was removed there
    }
    for (const MvEventGroup &group : theirs) {
        const MvEventGroup *before = base.find(group.id);
        if (!mine.find(group.id) && (!before || !(*before == group)))
            result.append(group);
    }
    return result;
}
