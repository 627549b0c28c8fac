// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

MvIconEngine::MvIconEngine(const QString &name, const QByteArray &svg)
    : m_name(name)
    , m_svg(svg)
{}

QColor MvIconEngine::color(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

void MvIconEngine::render(QPainter &painter, const QRectF &rect, const QColor &color) const
{
    QByteArray svg = m_svg;
    svg.replace(QByteArrayLiteral("currentColor"), color.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(svg);
    const qreal side = qMin(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(rect.center());
    painter.setOpacity(painter.opacity() * color.alphaF());
    renderer.render(&painter, square);
}

void MvIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State /*state*/)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    render(*painter, rect, color(mode));
    painter->restore();
}

QPixmap MvIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/)
{
    if (size.isEmpty() || m_svg.isEmpty())
        return {};
    const QColor ink = color(mode);
    const QString cacheKey = u"mvicon:%1:%2:%3x%4:%5"_s.arg(m_name, ink.name(QColor::HexArgb))
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(qHash(m_svg));
    QPixmap result;
    if (QPixmapCache::find(cacheKey, &result))
        return result;
    result = QPixmap(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    render(painter, QRectF(QPointF(), QSizeF(size)), ink);
    painter.end();
    QPixmapCache::insert(cacheKey, result);
    return result;
}

QPixmap MvIconEngine::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/)
{
    return pixmap(size, mode, state); // the size is in device pixels already
}

QSize MvIconEngine::actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    return size;
}

QIconEngine *MvIconEngine::clone() const
{
    return new MvIconEngine(*this);
}

QString MvIconEngine::key() const
{
    return u"MvIconEngine"_s;
}

QString MvIconEngine::iconName()
{
    return m_name;
}

bool MvIconEngine::isNull()
{
    return m_svg.isEmpty();
}
