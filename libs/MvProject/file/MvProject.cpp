// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProject.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvFotoAim.h"
#include "MvProject/MvProjectEntries.h"
#include "MvProject/MvUndoCommandDocument.h"

#include <algorithm>

namespace {

constexpr int lockTime = 500; // ms, for others who are just saving

/// Device numbers may be others after a restart of the computer; the file is the same all the same.
QByteArray withoutDevice(const QByteArray &stamp)
{
    return stamp.mid(stamp.indexOf(':'));
}

/// The stamp of a recovered document's file: the present one only if the file is still as it was under the document.
QByteArray stampUnder(const QFileInfo &original, const QFileInfo &recovered, const QByteArray &known)
{
    const QByteArray present = MvFileGuard::stamp(original);
    if (!known.isEmpty())
        return withoutDevice(known) == withoutDevice(present) ? present : known;
    const bool isOlder = original.exists() && original.lastModified() <= recovered.lastModified();
    return isOlder ? present : QByteArrayLiteral("unknown");
}

bool hasTexts(const MvCalendarPage &page)
{
    return std::any_of(page.elements().cbegin(), page.elements().cend(),
                       [](const MvPageElement &element) { return element.text() != nullptr; });
}

} // namespace

MvProject::MvProject(QObject *parent, MvSession &session)
    : QObject(parent)
    , m_session(session)
    , m_saved(m_document)
{}

MvProject::~MvProject()
{
    disconnect(&m_session.entries(), nullptr, this, nullptr);
}

void MvProject::keepEntries()
{
    m_entries = std::make_unique<MvProjectEntries>(m_session.entries(), [this] { onEntriesChanged(); });
    connect(&m_session.entries(), &MvCalendarEventRegistry::eventsChanged, this, [this] { m_entries->followOwn(); });
}

MvProjectFile::Entries MvProject::entries() const
{
    return m_entries ? m_entries->toSave() : MvProjectFile::Entries();
}

bool MvProject::doEntriesReachOwn() const
{
    return m_session.entries().doChangesReachOwn();
}

void MvProject::setEntriesReachOwn(bool reach)
{
    if (reach == doEntriesReachOwn())
        return;
    m_session.entries().setChangesReachOwn(reach);
    Q_EMIT entriesReachOwnChanged(reach);
}

void MvProject::onEntriesChanged()
{
    if (!m_entries) // it is just being made
        return;
    updateModified();
    Q_EMIT entriesChanged();
}

void MvProject::change(const MvCalendarDocument &after, const QString &text, int mergeId)
{
    const MvCalendarDocument followed = MvFotoAim::followed(m_document, after);
    m_session.undo().push(new MvUndoCommandDocument(this, followed, text, -1, mergeId));
}

void MvProject::changePage(int page, const MvCalendarPage &after, const QString &text, int mergeId)
{
    MvCalendarDocument document = m_document;
    document.setPage(page, after);
    document = MvFotoAim::followed(m_document, document);
    m_session.undo().push(new MvUndoCommandDocument(this, document, text, page, mergeId));
}

void MvProject::newProject(const MvCalendarDocument &document)
{
    m_saved = document;
    MvProjectFile::Content content;
    content.document = document;
    replace(content, QFileInfo(), QFileInfo(), QByteArray());
}

MvOutcome MvProject::open(const QFileInfo &file)
{
    const QByteArray stamp = MvFileGuard::stamp(file); // before reading: a later change is then noticed
    MvProjectFile::Content content = MvProjectFile::read(file);
    if (!content.isOk())
        return content;
    content.notes += MvProjectEntries::resolveFile(content, file);
    m_saved = content.document;
    replace(content, file, QFileInfo(), stamp);
    return content;
}

void MvProject::openRecovered(const MvProjectFile::Content &content, const QFileInfo &original,
                              const QFileInfo &recovered, const QByteArray &originalStamp)
{
    m_saved.reset();
    const bool hasFile = !original.filePath().isEmpty();
    MvProjectFile::Content resolved = content;
    MvProjectEntries::resolveFile(resolved, original);
    replace(resolved, original, recovered, hasFile ? stampUnder(original, recovered, originalStamp) : QByteArray());
}

MvOutcome MvProject::save()
{
    if (m_file.filePath().isEmpty())
        return {tr("Das Projekt hat noch keine Datei."), {}};
    return saveAs(m_file);
}

MvOutcome MvProject::saveAs(const QFileInfo &file)
{
    const bool isOther = file.absoluteFilePath() != m_file.absoluteFilePath() || m_file.filePath().isEmpty();
    std::optional<MvFileGuard> guard; // from taking in what others wrote until it is written
    MvProjectEntries::ToSave entries;
    if (m_entries) {
        guard.emplace(file, lockTime);
        entries = m_entries->prepare(file, !isOther && isFileChangedByOthers());
    }
    MvOutcome written = MvProjectFile::write(m_document, entries.list, file);
    if (!written.isOk())
        return written;
    written.notes += entries.notes;
    m_file = QFileInfo(file.absoluteFilePath());
    m_stamp = MvFileGuard::stamp(m_file);
    m_saved = m_document;
    m_recoveredFrom = QFileInfo();
    if (m_entries)
        m_entries->noteSaved(entries, m_file);
    if (isOther)
        Q_EMIT fileInfoChanged();
    updateModified();
    Q_EMIT saved();
    return written;
}

QString MvProject::displayName() const
{
    if (!m_file.filePath().isEmpty())
        return m_file.completeBaseName();
    return m_document.title().isEmpty() ? tr("Unbenannt") : m_document.title();
}

bool MvProject::isFileChangedByOthers() const
{
    return !m_stamp.isEmpty() && MvFileGuard::stamp(m_file) != m_stamp;
}

void MvProject::apply(const MvCalendarDocument &document)
{
    const MvCalendarDocument before = std::exchange(m_document, document);
    const bool isReset = before.pageDates() != document.pageDates() || before.range() != document.range() ||
                         !(before.format() == document.format());
    if (isReset) {
        Q_EMIT pagesReset();
    } else {
        const bool isRenamed = !(before.context() == document.context());
        for (int page = 0; page < document.pages().size(); ++page) {
            const bool printsNames = isRenamed && hasTexts(document.pages()[page]);
            if (printsNames || !(before.pages()[page] == document.pages()[page]))
                Q_EMIT pageChanged(page);
        }
    }
    updateModified();
    Q_EMIT documentChanged();
}

void MvProject::replace(const MvProjectFile::Content &content, const QFileInfo &file, const QFileInfo &recovered,
                        const QByteArray &stamp)
{
    m_session.undo().clear();
    if (m_entries)
        m_entries->begin(content, file, m_saved.has_value());
    m_document = content.document;
    m_file = file.filePath().isEmpty() ? QFileInfo() : QFileInfo(file.absoluteFilePath());
    m_stamp = stamp;
    m_recoveredFrom = recovered;
    Q_EMIT documentReplaced();
    Q_EMIT fileInfoChanged();
    updateModified();
    Q_EMIT documentChanged();
}

void MvProject::updateModified()
{
    const bool isModified = !m_saved || !(*m_saved == m_document) || (m_entries && m_entries->isModified());
    if (isModified == m_isModified)
        return;
    m_isModified = isModified;
    Q_EMIT modifiedChanged(isModified);
}
