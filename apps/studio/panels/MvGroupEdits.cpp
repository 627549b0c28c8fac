// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvGroupEdits.h"

#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumWords.h"
#include "MvCalendar/MvDayGrounds.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvSession.h"
#include "MvCore/MvUndoController.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QColor colors[] = {0xC0392B, 0x1F6FB2, 0x2E7D32, 0x8E44AD, 0xB9630E, 0x00838F, 0xAD1457, 0x5D4037};
const QString blank = u" "_s; // a column without a name, in the calendar

/// The page with what it has as a heading under another name.
MvCalendarPage withHeading(MvCalendarPage page, const QString &from, const QString &to)
{
    MvCalendariumAppearance appearance = page.appearance();
    QStringList headers = MvCalendariumWords(page.contentConfig().language()).columnHeadings(appearance);
    bool isHeaded = false;
    for (QString &header : headers) {
        if (header.trimmed().compare(from, Qt::CaseInsensitive) != 0)
            continue;
        header = to;
        isHeaded = true;
    }
    if (isHeaded) {
        appearance.setColumnHeaders(headers);
        page.setAppearance(appearance);
    }
    return page;
}

} // namespace

MvEventGroupList MvGroupEdits::groups() const
{
    return m_edits->session().entries().activeEventList().groups();
}

MvEntryDisplay MvGroupEdits::display() const
{
    return m_edits->document().entryDisplay();
}

QColor MvGroupEdits::freeColor() const
{
    MvDayGrounds grounds;
    for (const MvCalendarPage &page : m_edits->document().pages())
        grounds.add(page.appearance(), page.background().color());
    const MvEventGroupList known = groups();
    const auto isFree = [&known](const QColor &color) {
        return std::none_of(known.cbegin(), known.cend(),
                            [&color](const MvEventGroup &group) { return group.color == color; });
    };
    for (const QColor &color : colors) {
        const QColor readable = grounds.nearestReadable(color);
        if (readable.isValid() && isFree(readable))
            return readable;
    }
    return {};
}

QString MvGroupEdits::add()
{
    MvEventGroupList all = groups();
    QString name = tr("Neue Gruppe");
    for (int n = 2; all.findName(name); ++n)
        name = tr("Neue Gruppe %1").arg(n);
    const QString id = all.idOfName(name);
    MvEventGroup group = *all.find(id);
    group.color = freeColor();
    all.put(group);
    MvEntryEdits(m_edits->session()).setGroups(all, tr("Gruppe anlegen"));
    return id;
}

void MvGroupEdits::change(const MvEventGroup &group, const QString &name)
{
    MvEventGroupList all = groups();
    const MvEventGroup *present = all.find(group.id);
    if (!present || *present == group)
        return;
    const QString before = present->name;
    all.put(group);
    MvUndoController &undo = m_edits->session().undo();
    undo.beginMacro(name);
    MvEntryEdits(m_edits->session()).setGroups(all, name);
    if (before != group.name) {
        const auto rename = [&](MvCalendarDocument &document) {
            for (int page = 0; page < document.pages().size(); ++page)
                document.setPage(page, withHeading(document.pages().at(page), before, group.name));
        };
        m_edits->editDocument(rename, name);
    }
    undo.endMacro();
}

bool MvGroupEdits::rename(const QString &id, const QString &name)
{
    const MvEventGroupList all = groups();
    const MvEventGroup *group = all.find(id);
    const MvEventGroup *other = all.findName(name);
    if (!group || name.simplified().isEmpty() || (other && other->id != id))
        return false;
    MvEventGroup renamed = *group;
    renamed.name = name.simplified();
    change(renamed, tr("Gruppe umbenennen"));
    return true;
}

void MvGroupEdits::remove(const QString &id)
{
    const QString name = tr("Gruppe entfernen");
    MvEventGroupList rest = groups();
    rest.removeIf([&id](const MvEventGroup &group) { return group.id == id; });
    MvUndoController &undo = m_edits->session().undo();
    undo.beginMacro(name);
    MvEntryEdits(m_edits->session()).setGroups(rest, name);
    MvEntryDisplay shown = display();
    shown.hiddenGroups.removeAll(id); // a later group of that name is another one
    setDisplay(shown, name);
    undo.endMacro();
}

void MvGroupEdits::move(const QString &id, int places)
{
    MvEventGroupList all = groups();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&id](const MvEventGroup &group) { return group.id == id; });
    const qsizetype from = std::distance(all.cbegin(), found);
    const qsizetype to = from + places;
    if (from >= all.size() || to < 0 || to >= all.size())
        return;
    all.move(from, to);
    MvEntryEdits(m_edits->session()).setGroups(all, tr("Gruppen ordnen"));
}

void MvGroupEdits::setShown(const QString &id, bool isShown)
{
    MvEntryDisplay shown = display();
    shown.hiddenGroups.removeAll(id);
    if (!isShown)
        shown.hiddenGroups.append(id);
    setDisplay(shown, isShown ? tr("Gruppe einblenden") : tr("Gruppe ausblenden"));
}

void MvGroupEdits::setDisplay(const MvEntryDisplay &display, const QString &name)
{
    m_edits->editDocument([&display](MvCalendarDocument &document) { document.setEntryDisplay(display); }, name);
}

MvEventGroupList MvGroupEdits::shownGroups() const
{
    MvEventGroupList shown = groups();
    shown.removeIf([this](const MvEventGroup &group) { return !isShown(group.id); });
    return shown;
}

void MvGroupEdits::makeColumns()
{
    const MvEventGroupList shown = shownGroups();
    QStringList headers;
    for (const MvEventGroup &group : shown)
        headers.append(group.name);
    const MvCalendarEventList events = m_edits->session().entries().activeEventList();
    const bool hasOthers = std::any_of(events.cbegin(), events.cend(),
                                       [](const MvCalendarEvent &event) { return event.groups().isEmpty(); });
    if (hasOthers || headers.isEmpty())
        headers.prepend(blank);
    const auto apply = [&headers](MvCalendarPage &page) {
        MvCalendariumAppearance appearance = page.appearance();
        appearance.setColumnHeaders(headers);
        page.setAppearance(appearance);
    };
    m_edits->edit(apply, tr("Spalten aus den Gruppen"));
}
