// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QFileInfo>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <memory>

class MvFileGuard;
class MvProject;

/// Keeps what is not saved yet where a crash cannot reach it: at most ten seconds after a change, the document with its
/// entries is in a file in the user's folder "recovery". The file goes when the project is saved or given up, and with
/// this object; what a program that died left behind lists MvProjectRecovery.
///
/// A lock beside the file says that its program lives. Files are written in a thread. GUI thread.
class MVPROJECT_EXPORT MvProjectAutosave : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds from a change to the writing that it starts.
    static constexpr int defaultDelay = 5000;

    /// The project is not owned and must live longer.
    explicit MvProjectAutosave(MvProject *project, QObject *parent = nullptr);
    ~MvProjectAutosave() override;

    void setDelay(int milliseconds) { m_timer.setInterval(milliseconds); }
    /// The file with the unsaved state; one without a path when there is nothing to keep.
    QFileInfo file() const { return m_file; }

    /// The folder of recovery files; made when missing.
    static QString folder();

Q_SIGNALS:
    /// The file has the state of the document as it was a moment ago.
    void written();
    /// For a person; once until a writing succeeds again.
    void failed(const QString &error);

private:
    void considerDocument();
    void replaceDocument();
    void write();
    void tellResult(const QString &error);
    /// Removes the file, after the writing that may be under way, and gives up the lock.
    void discard();
    bool takeFile(const QFileInfo &file);

    MvProject *m_project;
    QTimer m_timer;
    QThreadPool m_thread; // one, so that writing and removing keep their order
    QFileInfo m_file;
    std::shared_ptr<MvFileGuard> m_guard; // of the file
    bool m_hasFailed = false;
};
