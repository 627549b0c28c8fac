// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoVeil.h"

#include "MvFoto/MvFotoFacts.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintMark.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvFotoPainter.h"
#include "MvProject/MvPageInks.h"
#include "MvProject/MvVeilField.h"

#include <QFileInfo>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double sampleSide = 20.0; // 2 mm of paper to a pixel: about what a letter covers
constexpr int mostSamples = 96;     // pixels along a side
constexpr double mayFail = 0.02;    // of the pixels
constexpr int steps = 50;           // of the veil's strength

/// What a channel of a colour adds to its luminance.
const std::array<double, 256> &linear()
{
    static const std::array<double, 256> values = [] {
        std::array<double, 256> made = {};
        for (size_t i = 0; i < made.size(); ++i) {
            const double value = double(i) / 255.0;
            made[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return made;
    }();
    return values;
}

double luminance(QRgb color)
{
    return 0.2126 * linear()[size_t(qRed(color))] + 0.7152 * linear()[size_t(qGreen(color))] +
           0.0722 * linear()[size_t(qBlue(color))];
}

double contrastOf(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QRgb mixed(QRgb beneath, QRgb veil, double strength)
{
    const auto channel = [strength](int below, int above) {
        return int(std::lround(below + (above - below) * strength));
    };
    return qRgb(channel(qRed(beneath), qRed(veil)), channel(qGreen(beneath), qGreen(veil)),
                channel(qBlue(beneath), qBlue(veil)));
}

/// The darkest and the lightest of the inks that can be read on the ground: what both are read on, the others are.
QList<double> extremes(const QList<QColor> &inks, const QColor &ground)
{
    QList<double> tones;
    for (const QColor &ink : inks) {
        if (ink.isValid() && MvFotoVeil::contrast(ink, ground) >= MvFotoVeil::demandedContrast)
            tones.append(luminance(ink.rgb()));
    }
    if (tones.size() < 2)
        return tones;
    const auto [darkest, lightest] = std::minmax_element(tones.cbegin(), tones.cend());
    return *darkest == *lightest ? QList<double>{*darkest} : QList<double>{*darkest, *lightest};
}

bool isLegible(const QImage &beneath, QRgb veil, double strength, const QList<double> &inks)
{
    const qint64 allowed = qint64(mayFail * beneath.width() * beneath.height());
    qint64 failed = 0;
    for (int y = 0; y < beneath.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(beneath.constScanLine(y));
        for (int x = 0; x < beneath.width(); ++x) {
            const double tone = luminance(mixed(line[x], veil, strength));
            const bool fails = std::any_of(inks.begin(), inks.end(), [tone](double ink) {
                return contrastOf(ink, tone) < MvFotoVeil::demandedContrast;
            });
            failed += fails ? 1 : 0;
        }
        if (failed > allowed)
            return false;
    }
    return true;
}

/// What is said of a photo where it is asked for: its caption, or what its file says.
QStringList descriptionOf(const MvFotoElement &foto, const QPainter &painter)
{
    if (foto.isEmpty() || !foto.caption().isEmpty() || !MvPaintMarking::isAsked(painter))
        return {foto.caption()};
    return {MvPrintableText::onOneLine(MvFotoFacts::of(QFileInfo(foto.path())).description)};
}

} // namespace

void MvFotoVeil::paintFotos(QPainter &painter) const
{
    const MvPageBackground &background = m_page.background();
    if (!background.foto().isEmpty()) {
        const MvPaintMarking mark(painter, MvPaintMark::Kind::Figure, -1, 0, descriptionOf(background.foto(), painter));
        MvFotoPainter(painter, background.foto(), m_fotos).paint(m_format.mediaRect());
        QColor veil = ground();
        veil.setAlphaF(float(background.veil()));
        if (veil.alpha() > 0)
            painter.fillRect(m_format.mediaRect(), veil);
    }
    int number = 0;
    for (const MvPageElement &element : m_elements) {
        if (!element.foto())
            continue;
        const MvPaintMarking mark(painter, MvPaintMark::Kind::Figure, ++number, 0,
                                  descriptionOf(*element.foto(), painter));
        MvFotoPainter(painter, *element.foto(), m_fotos).paint(element.rect(), element.rotation());
    }
}

void MvFotoVeil::paint(QPainter &painter, const QRectF &rect, const QList<QColor> &inks) const
{
    if (rect.isEmpty())
        return;
    QColor veil = veilFor(inks);
    veil.setAlphaF(float(strength(beneath(rect), veil, inks)));
    if (veil.alpha() > 0)
        painter.fillRect(rect, veil);
}

void MvFotoVeil::paint(QPainter &painter, const MvVeilField &field) const
{
    QColor veil = ground();
    double most = 0.0;
    for (const MvPageElement &element : field.elements)
        most = std::max(most, strength(beneath(element.rect()), veil, MvPageInks(m_page).of(element)));
    veil.setAlphaF(float(most));
    if (veil.alpha() == 0)
        return;
    const QRectF whole = field.rect.adjusted(0, -field.fadeAbove, 0, field.fadeBelow);
    if (whole == field.rect)
        return painter.fillRect(whole, veil);
    // in one piece, so that no line shows between the veil and the part in which it fades out
    QColor none = veil;
    none.setAlpha(0);
    QLinearGradient gradient(whole.topLeft(), whole.bottomLeft());
    gradient.setColorAt(0.0, field.fadeAbove > 0.0 ? none : veil);
    gradient.setColorAt(field.fadeAbove / whole.height(), veil);
    gradient.setColorAt(1.0 - field.fadeBelow / whole.height(), veil);
    gradient.setColorAt(1.0, field.fadeBelow > 0.0 ? none : veil);
    painter.fillRect(whole, gradient);
}

double MvFotoVeil::strength(const QImage &beneath, const QColor &ground, const QList<QColor> &inks)
{
    const QList<double> counted = extremes(inks, ground);
    if (beneath.isNull() || counted.isEmpty())
        return 0.0;
    const QImage pixels = beneath.convertToFormat(QImage::Format_RGB32);
    int least = 0;
    int most = steps;
    while (least < most) { // more veil is never less legible: what is beneath comes nearer to the ground
        const int middle = (least + most) / 2;
        if (isLegible(pixels, ground.rgb(), double(middle) / steps, counted))
            most = middle;
        else
            least = middle + 1;
    }
    return double(most) / steps;
}

double MvFotoVeil::contrast(const QColor &a, const QColor &b)
{
    return contrastOf(luminance(a.rgb()), luminance(b.rgb()));
}

QColor MvFotoVeil::ground() const
{
    QColor color = MvPageInks(m_page).ground();
    if (!color.isValid())
        color = Qt::white;
    color.setAlpha(255);
    return color;
}

/// That of the ground, but beneath what could not be read on it, as white words on a white page, the opposite.
QColor MvFotoVeil::veilFor(const QList<QColor> &inks) const
{
    const QColor usual = ground();
    const bool isLegible = std::any_of(
        inks.begin(), inks.end(), [&usual](const QColor &ink) { return contrast(ink, usual) >= demandedContrast; });
    if (isLegible || inks.isEmpty())
        return usual;
    const QColor &ink = inks.constFirst();
    return contrast(ink, Qt::black) > contrast(ink, Qt::white) ? Qt::black : Qt::white;
}

QImage MvFotoVeil::beneath(const QRectF &rect) const
{
    const auto pixels = [](double length) { return std::clamp(int(std::lround(length / sampleSide)), 1, mostSamples); };
    QImage image(pixels(rect.width()), pixels(rect.height()), QImage::Format_RGB32);
    image.fill(ground());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(image.width() / rect.width(), image.height() / rect.height());
    painter.translate(-rect.topLeft());
    painter.setClipRect(rect);
    paintFotos(painter);
    return image;
}
