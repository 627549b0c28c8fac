// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QByteArray>
#include <QColor>
#include <QIconEngine>
#include <QString>

/// Draws a one-colour SVG in the colours of the application's palette: button text, its disabled shade, and the
/// highlighted text on a selection. The colour is taken anew each time, so a change of the palette shows at the next
/// repaint; the drawing is made for the very pixels asked for, so it is sharp at any device pixel ratio.
class MVGUIWIDGETS_EXPORT MvIconEngine : public QIconEngine
{
public:
    /// `svg` draws in "currentColor". `name` is what QIcon::name() tells.
    MvIconEngine(const QString &name, const QByteArray &svg);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
    QString key() const override;
    QString iconName() override;
    bool isNull() override;

private:
    static QColor color(QIcon::Mode mode);
    void render(QPainter &painter, const QRectF &rect, const QColor &color) const;

    QString m_name;
    QByteArray m_svg;
};
