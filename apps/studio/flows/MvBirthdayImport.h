#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCore/MvSimplePersonList.h"

#include <QObject>
#include <QStringList>

#include <memory>

class QThread;
class QWidget;

/// Takes birthdays from address books over into the personal entries: as one step that can be undone, and each person
/// once, however often it is imported.
class MvBirthdayImport : public QObject
{
    Q_OBJECT

public:
    /// The window is the parent of all dialogs.
    explicit MvBirthdayImport(QWidget *window);
    ~MvBirthdayImport() override;

public Q_SLOTS:
    /// Asks for files.
    void start();
    /// Reads files in a thread of their own.
    void import(const QStringList &files);

Q_SIGNALS:
    void message(const QString &text);
    /// So many people with dates were found, so many of them were new.
    void finished(int found, int imported);

private:
    void take(const MvSimplePersonList &persons, const QString &error);
    void takeSome();
    void finish();

    QWidget *m_window;
    MvSimplePersonList m_waiting;
    MvCalendarEventList m_events; // of those that are done
    QString m_error;
    qsizetype m_found = 0;
    std::unique_ptr<QThread> m_thread; // while files are read
    bool m_isRunning = false;
};
