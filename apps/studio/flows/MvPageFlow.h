// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageKind.h"

#include <QObject>

class MvProject;

/// Pages that come, go and move: covers, backs and free ones, each change one undo step. Pages of months follow from
/// the range of the calendar and stay.
class MvPageFlow : public QObject
{
    Q_OBJECT

public:
    /// The project is not owned.
    explicit MvPageFlow(MvProject *project, QObject *parent = nullptr);

public Q_SLOTS:
    /// Puts a page of the kind, in the calendar's theme, before the one with the number.
    void add(MvPageKind kind, int before);
    void duplicate(int page);
    void remove(int page);
    void move(int from, int to);

Q_SIGNALS:
    /// The page that was worked on stands there now.
    void pageRequested(int page);
    void message(const QString &text);

private:
    MvProject *m_project;
};
