// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfShading.h"

#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPressColors.h"

#include <QBrush>

#include <algorithm>

namespace {

/// Between two stops as the paint system mixes them: what is more opaque counts for more.
QColor mixed(const QColor &from, const QColor &to, double share)
{
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    const double alpha = mix(from.alphaF(), to.alphaF());
    if (alpha <= 0.0)
        return from;
    const auto part = [&](double a, double b) {
        return float(std::clamp(mix(a * from.alphaF(), b * to.alphaF()) / alpha, 0.0, 1.0));
    };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()), float(alpha));
}

bool needsSteps(const QColor &from, const QColor &to, bool isMixedOfInks)
{
    return (isMixedOfInks || from.alpha() != to.alpha()) && (from.rgb() | 0xff000000) != (to.rgb() | 0xff000000);
}

} // namespace

QByteArray MvPdfShading::colorOf(const QColor &color, bool isOpacity) const
{
    QByteArray out = "[";
    QList<double> parts{color.alphaF()};
    if (!isOpacity && m_press) {
        const auto inks = m_press->inks(color.rgb()).parts;
        parts = QList<double>(inks.cbegin(), inks.cend());
    } else if (!isOpacity) {
        parts = {color.redF(), color.greenF(), color.blueF()};
    }
    for (const double part : std::as_const(parts))
        out += MvPdfSyntax::number(part, 3) + ' ';
    return out + ']';
}

QList<MvPdfShading::Part> MvPdfShading::partsOf(const QGradient &gradient, bool isMixedOfInks)
{
    constexpr int steps = 16;
    QGradientStops stops = gradient.stops();
    stops.prepend({0.0, stops.first().second});
    stops.append({1.0, stops.last().second});
    QList<Part> parts;
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const auto [from, first] = stops[i - 1];
        const auto [to, last] = stops[i];
        if (to <= from)
            continue;
        const int count = needsSteps(first, last, isMixedOfInks) ? steps : 1;
        for (int step = 0; step < count; ++step) {
            const double begin = double(step) / count;
            const double end = double(step + 1) / count;
            parts.append({from + (to - from) * begin, from + (to - from) * end, mixed(first, last, begin),
                          mixed(first, last, end)});
        }
    }
    return parts;
}

bool MvPdfShading::canDescribe(const QBrush &brush)
{
    const QGradient *gradient = brush.gradient();
    return gradient && gradient->spread() == QGradient::PadSpread &&
           gradient->coordinateMode() != QGradient::StretchToDeviceMode &&
           (gradient->type() == QGradient::LinearGradient || gradient->type() == QGradient::RadialGradient);
}

MvPdfShading::MvPdfShading(const QBrush &brush, const QRectF &bounds, const MvPressColors *press)
    : m_press(press)
    , m_gradient(*brush.gradient())
    , m_parts(partsOf(m_gradient, press != nullptr))
    , m_transform(brush.transform())
{
    if (m_gradient.coordinateMode() == QGradient::LogicalMode)
        return;
    const QTransform toBounds =
        QTransform::fromScale(bounds.width(), bounds.height()) * QTransform::fromTranslate(bounds.x(), bounds.y());
    m_transform =
        m_gradient.coordinateMode() == QGradient::ObjectMode ? m_transform * toBounds : toBounds * m_transform;
}

bool MvPdfShading::isTranslucent() const
{
    return std::any_of(m_parts.cbegin(), m_parts.cend(),
                       [](const Part &part) { return part.first.alpha() < 255 || part.last.alpha() < 255; });
}

QByteArray MvPdfShading::describe(bool isOpacity) const
{
    QByteArray place;
    if (m_gradient.type() == QGradient::LinearGradient) {
        const auto &linear = static_cast<const QLinearGradient &>(m_gradient);
        MvPdfSyntax::append(place, linear.start(), 4);
        MvPdfSyntax::append(place, linear.finalStop(), 4);
    } else {
        const auto &radial = static_cast<const QRadialGradient &>(m_gradient);
        MvPdfSyntax::append(place, radial.focalPoint(), 4);
        place += MvPdfSyntax::number(radial.focalRadius()) + ' ';
        MvPdfSyntax::append(place, radial.center(), 4);
        place += MvPdfSyntax::number(radial.centerRadius());
    }
    const QByteArray type = m_gradient.type() == QGradient::LinearGradient ? "2" : "3";
    const QByteArray colors = isOpacity ? "/DeviceGray" : m_press ? "/DeviceCMYK" : "/DeviceRGB";
    return "<</ShadingType " + type + "/ColorSpace" + colors + "/Coords[" + place + "]/Extend[true true]/Function" +
           function(isOpacity) + ">>";
}

QByteArray MvPdfShading::function(bool isOpacity) const
{
    QByteArray parts;
    QByteArray bounds;
    QByteArray ranges;
    for (const Part &part : m_parts) {
        parts += "<</FunctionType 2/Domain[0 1]/N 1/C0" + colorOf(part.first, isOpacity) + "/C1" +
                 colorOf(part.last, isOpacity) + ">>";
        if (part.from > 0.0)
            bounds += MvPdfSyntax::number(part.from, 6) + ' ';
        ranges += "0 1 ";
    }
    return "<</FunctionType 3/Domain[0 1]/Functions[" + parts + "]/Bounds[" + bounds + "]/Encode[" + ranges + "]>>";
}
