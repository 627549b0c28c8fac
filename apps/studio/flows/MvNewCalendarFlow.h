// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "panels/MvCalendarKind.h"

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class QWidget;

/// A new calendar: asks what it is to be, and remembers the answers for the next one.
class MvNewCalendarFlow : public QObject
{
    Q_OBJECT

public:
    using Then = std::function<void()>;

    /// The window is the parent of the dialog and of this object.
    explicit MvNewCalendarFlow(QWidget *window);

    /// The look of the last new calendar: the id of a theme; empty when there was none.
    static QString lastTheme();
    static void setLastTheme(const QString &id);

public Q_SLOTS:
    /// With the kind that was wanted last.
    void start();
    void startKind(MvCalendarKind kind);

Q_SIGNALS:
    /// What is open is to be left before `then`.
    void leaveRequested(const MvNewCalendarFlow::Then &then);
    /// The calendar, still without photos, and the files and folders for it.
    void wanted(const MvCalendarDocument &document, const QStringList &fotoPaths);

private:
    void ask(MvCalendarKind kind);

    QWidget *m_window;
    QPointer<QDialog> m_dialog; // that is open
};
