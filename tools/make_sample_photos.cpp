// Paints the portraits of the sample list: flat, friendly, made of a few shapes.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>

namespace
{

struct Portrait {
    QString fileName;
    QColor sky;
    QColor ground;
    QColor dress;
    QColor hair;
    QColor skin;
    bool isOld; // bun and glasses; otherwise short hair and a bow tie
};

constexpr int width = 600;
constexpr int height = 800;

void paintBackground(QPainter &painter, const Portrait &portrait)
{
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, portrait.sky.lighter(118));
    sky.setColorAt(1, portrait.sky);
    painter.fillRect(0, 0, width, height, sky);
    painter.setBrush(portrait.ground);
    painter.drawEllipse(QPointF(300, 900), 620, 330);
    painter.setBrush(QColor(255, 255, 255, 120));
    for (const QPointF &leaf : {QPointF(85, 150), QPointF(510, 110), QPointF(545, 330), QPointF(60, 400)})
        painter.drawEllipse(leaf, 34, 34);
}

void paintShoulders(QPainter &painter, const Portrait &portrait)
{
    painter.setBrush(portrait.dress);
    painter.drawRoundedRect(QRectF(110, 590, 380, 320), 150, 150);
    painter.setBrush(portrait.skin.darker(112));
    painter.drawRoundedRect(QRectF(250, 500, 100, 130), 45, 45);
    if (portrait.isOld) {
        painter.setBrush(Qt::white);
        for (int bead = -4; bead <= 4; ++bead)
            painter.drawEllipse(QPointF(300 + bead * 22, 652 - bead * bead * 2.4), 11, 11);
    } else {
        painter.setBrush(portrait.dress.darker(170));
        painter.drawPolygon(QPolygonF({{300, 640}, {235, 605}, {235, 678}}));
        painter.drawPolygon(QPolygonF({{300, 640}, {365, 605}, {365, 678}}));
        painter.drawEllipse(QPointF(300, 641), 17, 17);
    }
}

void paintHead(QPainter &painter, const Portrait &portrait)
{
    painter.setBrush(portrait.hair);
    if (portrait.isOld)
        painter.drawEllipse(QPointF(300, 165), 78, 70);
    painter.drawEllipse(QPointF(300, 345), portrait.isOld ? 188 : 172, 190);
    painter.setBrush(portrait.skin);
    painter.drawEllipse(QPointF(150, 395), 28, 38);
    painter.drawEllipse(QPointF(450, 395), 28, 38);
    painter.drawEllipse(QPointF(300, 390), 148, 172);
    QPainterPath fringe;
    fringe.moveTo(146, 380);
    fringe.cubicTo(150, 240, 240, 200, 310, 205);
    fringe.cubicTo(400, 208, 450, 270, 454, 380);
    fringe.cubicTo(410, 330, 350, 285, portrait.isOld ? 300 : 250, 282);
    fringe.cubicTo(235, 300, 180, 330, 146, 380);
    painter.setBrush(portrait.hair);
    painter.drawPath(fringe);
}

void paintFace(QPainter &painter, const Portrait &portrait)
{
    painter.setBrush(QColor(226, 120, 110, 90));
    painter.drawEllipse(QPointF(205, 455), 34, 26);
    painter.drawEllipse(QPointF(395, 455), 34, 26);
    painter.setBrush(QColor(60, 45, 40));
    painter.drawEllipse(QPointF(240, 395), 13, 16);
    painter.drawEllipse(QPointF(360, 395), 13, 16);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(150, 70, 60), 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(235, 425, 130, 90), 205 * 16, 130 * 16);
    painter.setPen(QPen(portrait.skin.darker(125), 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(283, 410, 34, 40), 200 * 16, 140 * 16);
    if (portrait.isOld) {
        painter.setPen(QPen(QColor(120, 50, 60), 7));
        painter.drawEllipse(QPointF(240, 395), 50, 44);
        painter.drawEllipse(QPointF(360, 395), 50, 44);
        painter.drawLine(QPointF(290, 390), QPointF(310, 390));
    }
    painter.restore();
}

bool paint(const Portrait &portrait, const QDir &folder)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintBackground(painter, portrait);
    paintShoulders(painter, portrait);
    paintHead(painter, portrait);
    paintFace(painter, portrait);
    painter.end();
    QImageWriter writer(folder.filePath(portrait.fileName), "jpeg");
    writer.setQuality(85);
    return writer.write(image);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QDir folder(application.arguments().value(1));
    const Portrait erika = {QStringLiteral("oma-erika.jpg"),
                            QColor(168, 206, 214),
                            QColor(142, 178, 128),
                            QColor(150, 84, 120),
                            QColor(222, 220, 216),
                            QColor(244, 208, 180),
                            true};
    const Portrait ben = {QStringLiteral("ben.jpg"),
                          QColor(244, 214, 150),
                          QColor(120, 160, 150),
                          QColor(74, 118, 168),
                          QColor(110, 70, 42),
                          QColor(240, 196, 164),
                          false};
    return paint(erika, folder) && paint(ben, folder) ? 0 : 1;
}
