// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QPair>
#include <QSet>
#include <QString>
#include <QUuid>

class MvProject;

/// Entries of 29 February are printed in leap years alone. When one comes in, or is moved there, while the calendar
/// prints a February without such a day, this says so.
class MvLeapDayHint : public QObject
{
    Q_OBJECT

public:
    /// The project is not owned and must outlive the hint. Entries that are there already are not told.
    explicit MvLeapDayHint(const MvProject *project, QObject *parent = nullptr);

Q_SIGNALS:
    /// For the status bar; after the change that brought the entry.
    void message(const QString &text);

private:
    void look();

    const MvProject *m_project;
    QSet<QPair<QUuid, QString>> m_known; // entries of 29 February, by uuid and name: a uuid may be shared
};
