// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectEntries.h"

#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvProject/MvProjectEntryFotos.h"

#include <QDir>
#include <QUuid>

#include <utility>

namespace {

constexpr int mostNamed = 8; // entries that were left out

/// With their groups, which comparing lists leaves out.
bool areEqual(const MvCalendarEventList &a, const MvCalendarEventList &b)
{
    return a.isSame(b) || (a == b && a.groups() == b.groups());
}

} // namespace

MvProjectEntries::MvProjectEntries(MvCalendarEventRegistry &registry, const std::function<void()> &changed)
    : m_registry(registry)
    , m_changed(changed)
    , m_before(registry.activeModelId())
{
    m_registry.installProjectStore(this);
    begin({}, {}, true);
}

MvProjectEntries::~MvProjectEntries()
{
    m_registry.installProjectStore(nullptr);
    m_registry.setActiveModelId(m_before, false);
    m_registry.forgetList(m_project);
}

QStringList MvProjectEntries::resolveFile(MvProjectFile::Content &content, const QFileInfo &file)
{
    const QString path = content.document.entriesFile();
    QString place = QDir::toNativeSeparators(file.filePath());
    if (!content.entries && !path.isEmpty()) {
        content.entries = MvEntryIntake::readAsList(QFileInfo(path));
        place = QDir::toNativeSeparators(path);
    }
    if (!content.entries)
        return {};
    if (const QString refusal = content.entries->refusal(); !refusal.isEmpty())
        return {tr("Die Einträge dieses Kalenders fehlen, bis ihre Datei wieder lesbar ist. %1").arg(refusal)};
    content.document.setEntriesFile({}); // from now on they are the calendar's own
    QStringList notes;
    if (!content.entries->skipped.isEmpty())
        notes.append(tr("%1: Einträge, die sich nicht lesen lassen, bleiben weg.").arg(place) + u'\n' +
                     MvCalendarEventFile::describe(content.entries->skipped, mostNamed));
    if (!content.entries->note.isEmpty())
        notes.append(content.entries->note);
    return notes;
}

void MvProjectEntries::begin(const MvProjectFile::Content &content, const QFileInfo &file, bool isSaved)
{
    const MvProjectIdentifier before = m_project;
    m_project = MvProjectIdentifier(QUuid::createUuid().toString(), true);
    m_file = file;
    m_isUnknown = content.entries && !content.entries->refusal().isEmpty();
    m_isCopy = !content.entries;
    m_hadNone = m_isCopy && !file.filePath().isEmpty();
    if (content.entries)
        m_registry.takeList(m_project, content.entries->events); // else setActiveModelId() copies the user's
    m_registry.setActiveModelId(m_project, false);
    m_registry.forgetList(before);
    m_saved.reset();
    if (isSaved)
        m_saved = list();
    m_usedFotos.clear();
    m_isSwept = false;
    noteFotos();
    if (!file.filePath().isEmpty())
        MvProjectEntryFotos::fetchBack(list(), file.absoluteDir());
}

/// Photos come beside the file when it is saved, so that a step back knows no others than the lists then had.
void MvProjectEntries::noteFotos()
{
    const MvCalendarEventList present = list();
    for (const MvCalendarEvent &event : present) {
        if (event.foto().isValid())
            m_usedFotos.insert(event.imagePath().fileName());
    }
}

MvCalendarEventList MvProjectEntries::list() const
{
    return m_registry.eventsOfProject(m_project);
}

bool MvProjectEntries::isModified() const
{
    return !m_saved || !areEqual(*m_saved, list());
}

MvProjectFile::Entries MvProjectEntries::toSave() const
{
    using Problem = MvCalendarEventStore::Problem;
    const MvCalendarEventList present = list();
    const bool isOwnUnknown = m_isCopy && m_registry.userFile().problem().kind == Problem::Unreadable;
    if (isOwnUnknown || (m_isUnknown && present.isEmpty()))
        return {};
    return present;
}

MvProjectEntries::ToSave MvProjectEntries::prepare(const QFileInfo &file, bool isChangedByOthers) const
{
    ToSave saved;
    saved.list = toSave();
    if (isChangedByOthers)
        saved.list = withChangesOfOthers();
    if (!saved.list)
        return saved;
    const MvProjectEntryFotos::Taken taken = MvProjectEntryFotos::takeAlong(*saved.list, file.absoluteDir());
    saved.list = taken.events;
    saved.notes = taken.notes;
    if (m_hadNone && !taken.events.isEmpty())
        saved.notes.prepend(tr("Der Kalender hat jetzt seine eigenen Einträge: %n aus Ihren Einträgen stehen darin. "
                               "Was Sie in anderen Kalendern ändern, ändert hier nichts mehr.",
                               nullptr, int(taken.events.size())));
    return saved;
}

/// Three-way, from what both have started with; without that, after a recovery, nothing of either side goes.
MvCalendarEventList MvProjectEntries::withChangesOfOthers() const
{
    const MvProjectFile::Content content = MvProjectFile::read(m_file);
    if (!content.isOk() || !content.entries || !content.entries->refusal().isEmpty())
        return list();
    return MvCalendarEventMerge::threeWay(m_saved.value_or(MvCalendarEventList()), list(), content.entries->events,
                                          content.entries->isComplete);
}

void MvProjectEntries::noteSaved(const ToSave &saved, const QFileInfo &file)
{
    m_file = file;
    if (!saved.list)
        return;
    m_hadNone = false;
    m_isCopy = false;
    m_isUnknown = false;
    m_saved = saved.list;
    if (!list().isSame(*saved.list))
        m_registry.setEvents(*saved.list);
    m_saved = list();
    noteFotos();
    if (!std::exchange(m_isSwept, true)) // what goes in this session may come back in it
        MvProjectEntryFotos::sweep(file.absoluteDir(), m_usedFotos);
}

void MvProjectEntries::followOwn()
{
    const MvCalendarEventList own = m_registry.ownEvents();
    if (!m_isCopy || m_isFollowing || areEqual(list(), own))
        return;
    m_isFollowing = true;
    m_registry.setEvents(own);
    m_isFollowing = false;
}

bool MvProjectEntries::holdsFoto(const QString &path) const
{
    return !m_file.filePath().isEmpty() && MvProjectEntryFotos::isBeside(path, m_file.absoluteDir());
}

void MvProjectEntries::listChanged(const MvProjectIdentifier &project)
{
    if (!(project == m_project))
        return;
    if (!m_isFollowing)
        m_isCopy = false;
    else if (m_saved)
        m_saved = list();
    m_changed();
}
