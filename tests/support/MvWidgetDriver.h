// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvTestFiles.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QWidget>

/// What tests of widgets do with windows, photos and the mouse.
namespace MvWidgetDriver {

/// The open window of a kind; null when none is.
template <class Window>
Window *openWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<Window *>(widget);
        if (window && window->isVisible())
            return window;
    }
    return nullptr;
}

inline bool writeFoto(const QString &path, const QColor &color, const QSize &size = {40, 30})
{
    return MvTestFiles::writeFoto(path, size, color);
}

using MvTestFiles::write;

/// 34 bytes that claim 16,383 pixels square.
inline bool writeHugeFoto(const QString &path)
{
    return write(path, QByteArray::fromHex("524946461a000000574542505650384c0d0000002ffebfff0f111111111111111100"));
}

/// Files under the mouse.
class Drag
{
public:
    Drag(QWidget *target, const QStringList &paths, Qt::KeyboardModifiers modifiers = {})
        : m_target(target)
        , m_modifiers(modifiers)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        m_data.setUrls(urls);
    }

    /// Whether the target says that it would take them there.
    bool isTaken(const QPoint &position)
    {
        QDragEnterEvent enter(position, Qt::CopyAction, &m_data, Qt::LeftButton, m_modifiers);
        QApplication::sendEvent(m_target, &enter);
        QDragMoveEvent move(position, Qt::CopyAction, &m_data, Qt::LeftButton, m_modifiers);
        QApplication::sendEvent(m_target, &move);
        return enter.isAccepted() && move.isAccepted();
    }
    bool drop(const QPoint &position)
    {
        QDropEvent event(position, Qt::CopyAction, &m_data, Qt::LeftButton, m_modifiers);
        event.ignore();
        QApplication::sendEvent(m_target, &event);
        return event.isAccepted();
    }

private:
    QWidget *m_target;
    Qt::KeyboardModifiers m_modifiers;
    QMimeData m_data;
};

} // namespace MvWidgetDriver
