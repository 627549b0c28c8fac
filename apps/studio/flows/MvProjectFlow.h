// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QObject>
#include <QString>

#include <functional>

class MvProject;
class QFileInfo;
class QWidget;

/// Open, save, leave: the questions and messages around the open project. Nothing here waits for an answer; what comes
/// after one is handed on as a function, which is not called when the user changes his mind or saving fails.
class MvProjectFlow : public QObject
{
    Q_OBJECT

public:
    using Then = std::function<void()>;

    /// The project is not owned. The window is the parent of all dialogs.
    MvProjectFlow(MvProject *project, QWidget *window);

    /// What a user sees who has nothing yet: the coming year, A4 landscape, in German.
    static MvCalendarDocument firstDocument();

    /// Whether a file is named like a project.
    static bool isProjectFile(const QString &path);

public Q_SLOTS:
    /// Asks for a file.
    void askAndOpen();
    /// Opens a file, after the question about unsaved changes.
    void open(const QString &path);
    void save();
    void saveAs();

public:
    /// Calls `then` at once without unsaved changes; else after they were saved, or given up by the user.
    void leave(const Then &then);
    void saveThen(const Then &then);
    void saveAsThen(const Then &then);

Q_SIGNALS:
    void message(const QString &text);
    void recentFilesChanged();
    /// A calendar of the user's was opened.
    void opened();

private:
    void openNow(const QString &path);
    void tellUnreadable(const QFileInfo &file, const QString &error);
    void write(const QString &path, const Then &then);
    void askAboutOthersChanges(const Then &then);

    MvProject *m_project;
    QWidget *m_window;
};
