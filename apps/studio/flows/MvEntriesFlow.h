// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

#include <functional>

class QMessageBox;
class MvCalendarEventRegistry;
class MvCalendarEventStore;
class QWidget;

/// What a person must know about the file of their entries, and what they can do about it: said once when it arises, in
/// a notice of the window as long as it lasts, and asked about before entries would be lost by leaving.
class MvEntriesFlow : public QObject
{
    Q_OBJECT

public:
    using Then = std::function<void()>;

    /// The window is the parent of all dialogs.
    MvEntriesFlow(MvCalendarEventRegistry &entries, QWidget *window);

    /// Tells what has troubled reading, once the window is to be seen.
    void start();
    /// Whether entries would be lost by leaving; tries to save them first.
    bool hasUnsaved() const;
    /// Calls `then` at once when all is saved; else when the person saves elsewhere or gives the changes up.
    void leave(const Then &then);
    /// The notice for the window; empty when there is nothing to know.
    QString notice() const;

public Q_SLOTS:
    /// Tells again what the notice is about.
    void show();

Q_SIGNALS:
    void noticeChanged(const QString &text);
    void message(const QString &text);

private:
    void onProblemChanged();
    void retry();
    void restore();
    void saveElsewhere(const Then &then);

    MvCalendarEventStore &store() const;

    MvCalendarEventRegistry &m_registry;
    QWidget *m_window;
    QSet<int> m_told; // kinds of problems
    QPointer<QMessageBox> m_box;
    bool m_isStarted = false;
};
