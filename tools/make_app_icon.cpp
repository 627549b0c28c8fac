// SPDX-License-Identifier: LGPL-2.1-or-later
// Draws <folder>/<name>.svg as <folder>/<name>-<size>.png in the sizes of the icon theme.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QString base = QCoreApplication::arguments().value(1) + u'/' + QCoreApplication::arguments().value(2);
    QSvgRenderer renderer(base + QStringLiteral(".svg"));
    if (!renderer.isValid())
        return 1;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QImage image(size, size, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
        painter.end();
        if (!image.save(QStringLiteral("%1-%2.png").arg(base).arg(size)))
            return 1;
    }
    return 0;
}
