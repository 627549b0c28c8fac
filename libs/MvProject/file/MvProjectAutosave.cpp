// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectAutosave.h"

#include "MvCore/MvBackground.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvProjectParts.h"
#include "MvProject/MvProjectVocabulary.h"

#include <QDir>
#include <QFile>
#include <QUuid>

using namespace Qt::StringLiterals;

MvProjectAutosave::MvProjectAutosave(MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    m_thread.setMaxThreadCount(1);
    m_timer.setSingleShot(true);
    m_timer.setInterval(defaultDelay);
    connect(&m_timer, &QTimer::timeout, this, &MvProjectAutosave::write);
    connect(project, &MvProject::documentReplaced, this, &MvProjectAutosave::replaceDocument);
    connect(project, &MvProject::documentChanged, this, &MvProjectAutosave::considerDocument);
    connect(project, &MvProject::entriesChanged, this, &MvProjectAutosave::considerDocument);
    connect(project, &MvProject::saved, this, &MvProjectAutosave::considerDocument);
    considerDocument();
}

MvProjectAutosave::~MvProjectAutosave()
{
    discard();
    m_thread.waitForDone();
}

QString MvProjectAutosave::folder()
{
    return MvDirectoryConfig::instance().programDataSubDir(MvProjectVocabulary::recoveryFolder).absolutePath();
}

void MvProjectAutosave::considerDocument()
{
    if (!m_project->isModified())
        discard();
    else if (!m_timer.isActive()) // not put off by further changes
        m_timer.start();
}

void MvProjectAutosave::replaceDocument()
{
    const QFileInfo recovered = m_project->recoveredFrom();
    if (recovered.filePath().isEmpty() || recovered.absoluteFilePath() != m_file.absoluteFilePath())
        discard();
    if (!recovered.filePath().isEmpty() && m_file.filePath().isEmpty())
        takeFile(recovered); // the state that was found stays where it is until it is saved
}

void MvProjectAutosave::write()
{
    const QFileInfo fresh(
        u"%1/%2.%3"_s.arg(folder(), QUuid::createUuid().toString(QUuid::WithoutBraces), MvProjectFile::suffix()));
    if (m_file.filePath().isEmpty() && !takeFile(fresh))
        return tellResult(tr("In %1 lässt sich nicht schreiben.").arg(folder()));
    const QByteArray bytes =
        MvProjectFile::toBytes(m_project->document(), m_file.absoluteDir(), m_project->fileInfo().filePath(),
                               m_project->fileStamp(), m_project->entries());
    MvBackground::start(m_thread, [this, file = m_file, bytes] {
        QString error = MvProjectParts(bytes).check().message; // an older state is better than one that does not open
        if (error.isEmpty())
            error = MvSafeFileWriter::write(file, bytes, MvSafeFileWriter::Backups::None).error;
        QMetaObject::invokeMethod(
            this, [this, error] { tellResult(error); }, Qt::QueuedConnection);
    });
}

void MvProjectAutosave::tellResult(const QString &error)
{
    if (error.isEmpty()) {
        m_hasFailed = false;
        Q_EMIT written();
        return;
    }
    m_timer.start(); // the disk may have room again by then
    if (!std::exchange(m_hasFailed, true))
        Q_EMIT failed(tr("Die Sicherung für den Notfall ist misslungen: %1").arg(error));
}

void MvProjectAutosave::discard()
{
    m_timer.stop();
    if (m_file.filePath().isEmpty())
        return;
    MvBackground::start(
        m_thread, [path = m_file.absoluteFilePath(), guard = std::exchange(m_guard, nullptr)] { QFile::remove(path); });
    m_file = QFileInfo();
}

bool MvProjectAutosave::takeFile(const QFileInfo &file)
{
    auto guard = std::make_shared<MvFileGuard>(file, 0);
    if (!guard->isLocked())
        return false;
    m_guard = std::move(guard);
    m_file = QFileInfo(file.absoluteFilePath());
    return true;
}
