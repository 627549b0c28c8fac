// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvOpenCalendar.h"
#include "MvProductBase/MvVCardDate.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class MvAddressBookImport;
class MvProgressDialog;
class MvProject;
class MvSession;
class QWidget;

/// Takes birthdays from address books over into the personal entries: as one step that can be undone, and each person
/// once, however often it is imported.
///
/// Files and photos are read in the background. It can be cancelled at any time; neither that nor the end of this
/// object waits for the reading. They are for the calendar that is open when it begins: when another is open at the
/// end, nothing is taken, and that is told.
class MvBirthdayImport : public QObject
{
    Q_OBJECT

public:
    /// Adds to the entries of the project's session, and outlives neither. The window is the parent of all dialogs.
    MvBirthdayImport(MvProject *project, QWidget *window);
    ~MvBirthdayImport() override;

    bool isRunning() const { return m_import != nullptr; }

public Q_SLOTS:
    /// Asks for files.
    void start();
    /// Reads files. Does nothing while others are read.
    void import(const QStringList &files);
    void cancel();

Q_SIGNALS:
    void message(const QString &text);
    /// So many people with dates were found, so many of them were new.
    void finished(int found, int imported);

private:
    void runInBackground(const std::function<void(MvAddressBookImport &)> &work, void (MvBirthdayImport::*then)());
    void askForOrder();
    void makeEntries(MvVCardDate::Order order);
    void finish();
    void drop();
    QString problemOfFile() const;
    void showProgress();
    void hideProgress();

    MvProject *m_project;
    MvSession &m_session;
    QWidget *m_window;
    std::shared_ptr<MvAddressBookImport> m_import; // while it runs
    std::optional<MvOpenCalendar> m_calendar;      // for which
    QPointer<MvProgressDialog> m_progress;
    QTimer m_progressTimer;
};
