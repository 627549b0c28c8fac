// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvDockTitles.h"

#include <QDockWidget>
#include <QMainWindow>

MvDockTitles::MvDockTitles(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MvDockTitles::update);
}

void MvDockTitles::add(QDockWidget *dock)
{
    m_docks.append(dock);
    const auto later = [this] { m_timer.start(0); };
    connect(dock, &QDockWidget::topLevelChanged, this, later);
    connect(dock, &QDockWidget::dockLocationChanged, this, later);
    connect(dock, &QDockWidget::visibilityChanged, this, later);
    m_timer.start(0);
}

void MvDockTitles::update()
{
    for (QDockWidget *dock : m_docks) {
        const bool isTab = !dock->isFloating() && !m_window->tabifiedDockWidgets(dock).isEmpty();
        if (isTab == (dock->titleBarWidget() != nullptr))
            continue;
        QWidget *before = dock->titleBarWidget();
        dock->setTitleBarWidget(isTab ? new QWidget(dock) : nullptr);
        if (before)
            before->deleteLater();
    }
}
