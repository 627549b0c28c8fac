// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvDraggedDates.h"

#include "MvCalendar/MvEntryFiles.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

MvDraggedDates::MvDraggedDates(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool MvDraggedDates::isDates(const QString &path)
{
    return MvEntryFiles::kindOf(path) != MvEntryFiles::Kind::None;
}

QStringList MvDraggedDates::paths(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data->urls()) {
        if (const QString path = url.toLocalFile(); isDates(path))
            paths.append(path);
    }
    return paths;
}

bool MvDraggedDates::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Drop || !watched->isWidgetType() ||
        static_cast<QWidget *>(watched)->window() != m_window)
        return false;
    const auto *drop = static_cast<QDropEvent *>(event);
    const QStringList files = drop->source() ? QStringList() : paths(drop->mimeData());
    const bool areAlone = files.size() == drop->mimeData()->urls().size();
    if (!files.isEmpty())
        QTimer::singleShot(0, this, [this, files, areAlone] { Q_EMIT dropped(files, !areAlone); });
    return false;
}
