// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvFotoPoolIntake.h"

#include <QObject>
#include <QStringList>

#include <functional>

class MvProject;
class QWidget;

/// Many photos at once: asks for files and folders, has them read behind the scenes, and puts them into the calendar's
/// pool, into its frames, or into a new calendar. What could not be taken is told by name and reason. What is being
/// read when another calendar is opened comes into neither.
class MvFotoFlow : public QObject
{
    Q_OBJECT

public:
    using Then = std::function<void()>;

    /// The project is not owned. The window is the parent of all dialogs.
    MvFotoFlow(MvProject *project, QWidget *window);
    ~MvFotoFlow() override;

    bool isRunning() const { return m_intake->isRunning(); }

    /// Asks for photos or for a folder of them, without blocking, and remembers where they were.
    static void askForPaths(QWidget *parent, bool isFolder, const std::function<void(const QStringList &)> &then);

public Q_SLOTS:
    void askForFiles();
    void askForFolder();
    void askForNewFiles();
    void askForNewFolder();
    /// Into the pool.
    void add(const QStringList &paths);
    /// Into the pool, and into a frame and the empty ones after it, as far as the photos reach.
    void fillFrom(const QStringList &paths, int page, int element);
    /// A new calendar in the chosen theme with these photos, distributed; without any, with empty frames. What is open
    /// is left first.
    void startCalendar(const QStringList &paths);
    /// The same with a calendar that somebody has described already; what was open is given up.
    void begin(const MvCalendarDocument &document, const QStringList &paths);
    void setThemeForNew(const QString &themeId) { m_theme = themeId; }
    /// The photos of the pool onto the pages.
    void distribute();
    /// What has been read by then is taken.
    void cancel();

Q_SIGNALS:
    /// A total of 0: nobody knows yet; of -1: it is over.
    void progress(int done, int total);
    void message(const QString &text);
    /// What is open is to be left before `then`.
    void leaveRequested(const MvFotoFlow::Then &then);

private:
    /// What becomes of the document once the photos have been read.
    using Use =
        std::function<MvCalendarDocument(const MvCalendarDocument &document, const QList<MvFotoPoolItem> &items)>;

    /// One that is under way; without a use nobody wants its photos any more.
    struct Reading
    {
        QString step;
        Use use;
    };

    void forget();
    void read(const QStringList &paths, const QString &step, const Use &use);
    void take(const MvFotoPoolIntake::Result &result);
    void tell(const MvFotoPoolIntake::Result &result);
    MvCalendarDocument newDocument() const;

    MvProject *m_project;
    QWidget *m_window;
    MvFotoPoolIntake *m_intake;
    QList<Reading> m_readings; // they end in their order
    QString m_theme;
};
