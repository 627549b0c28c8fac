// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventGroup.h"

#include <algorithm>

namespace {

/// Of those groups that the other list has, too, in order.
QStringList idsOf(const MvEventGroupList &groups, const MvEventGroupList &other)
{
    QStringList ids;
    for (const MvEventGroup &group : groups) {
        if (other.find(group.id))
            ids.append(group.id);
    }
    return ids;
}

} // namespace

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

QStringList MvEventGroupList::idsIn(const MvEventGroupList &other, const QStringList &ids) const
{
    QStringList theirs;
    for (const QString &id : ids) {
        const MvEventGroup *group = find(id);
        const MvEventGroup *known = group ? other.findName(group->name) : nullptr;
        theirs.append(known ? known->id : id);
    }
    theirs.removeDuplicates();
    return theirs;
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
    const auto isChanged = [&base](const MvEventGroup *group) {
        const MvEventGroup *before = group ? base.find(group->id) : nullptr;
        return group && (!before || !(*before == *group));
    };
    MvEventGroupList result;
    const auto take = [&](const MvEventGroup &group) {
        const MvEventGroup *here = mine.find(group.id);
        const MvEventGroup *there = theirs.find(group.id);
        const MvEventGroup *other = isChanged(here) ? here : there;
        const bool isRemoved = (!here || !there) && !isChanged(other); // by one side, and the other left it alone
        if (other && !isRemoved && !result.find(group.id))
            result.append(*other);
    };
    const bool isOrderedHere =
        idsOf(mine, base) != idsOf(base, mine) || idsOf(theirs, base) == idsOf(base, theirs); // else only there
    const MvEventGroupList &first = isOrderedHere ? mine : theirs;
    std::for_each(first.cbegin(), first.cend(), take);
    const MvEventGroupList &rest = isOrderedHere ? theirs : mine;
    std::for_each(rest.cbegin(), rest.cend(), take);
    return result;
}
