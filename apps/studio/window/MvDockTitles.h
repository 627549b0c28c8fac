// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QTimer>

class QDockWidget;
class QMainWindow;

/// Hides the titles of docks that stand behind each other: their tabs name them. A dock that floats or stands alone
/// has its title.
class MvDockTitles : public QObject
{
    Q_OBJECT

public:
    explicit MvDockTitles(QMainWindow *window);

    void add(QDockWidget *dock);

private:
    void update();

    QMainWindow *m_window;
    QList<QDockWidget *> m_docks;
    QTimer m_timer; // when what the docks are doing is done
};
