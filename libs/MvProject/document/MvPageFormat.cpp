// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageFormat.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double minimumSide = 200.0;
constexpr double maximumSide = 30000.0;
constexpr double maximumBleed = 200.0;
constexpr double bindingMargin = 120.0;
constexpr double widestMargin = 110.0;
constexpr double narrowestMargin = 50.0;
constexpr double besideBinding = 20.0;

constexpr double widestZone = 400.0;
constexpr double widestSafeMargin = 200.0;
constexpr double fieldShare = 24.0; // of the short edge is margin
constexpr double besideSafeMargin = 20.0;
constexpr double mostGutters = 0.75; // of a column or row with its gutter
constexpr double squarestPage = 7.0 / 6.0;
constexpr double widestPage = 2.0;

struct Paper
{
    QLatin1StringView name;
    double width = 0.0; // upright
    double height = 0.0;
    const char *label = nullptr; // nullptr: as the name
};

// DIN EN ISO 216, print shops, ANSI; in tenths of a millimetre
constexpr std::array papers{
    Paper{"A0"_L1, 8410, 11890, nullptr},
    Paper{"A1"_L1, 5940, 8410, nullptr},
    Paper{"A2"_L1, 4200, 5940, nullptr},
    Paper{"A3"_L1, 2970, 4200, nullptr},
    Paper{"A4"_L1, 2100, 2970, nullptr},
    Paper{"A5"_L1, 1480, 2100, nullptr},
    Paper{"A6"_L1, 1050, 1480, nullptr},
    Paper{"square-210"_L1, 2100, 2100, QT_TRANSLATE_NOOP("MvPageFormat", "Quadrat 21 × 21 cm")},
    Paper{"square-300"_L1, 3000, 3000, QT_TRANSLATE_NOOP("MvPageFormat", "Quadrat 30 × 30 cm")},
    Paper{"13x18cm"_L1, 1300, 1800, QT_TRANSLATE_NOOP("MvPageFormat", "13 × 18 cm")},
    Paper{"20x30cm"_L1, 2000, 3000, QT_TRANSLATE_NOOP("MvPageFormat", "20 × 30 cm")},
    Paper{"30x45cm"_L1, 3000, 4500, QT_TRANSLATE_NOOP("MvPageFormat", "30 × 45 cm")},
    Paper{"panorama"_L1, 1485, 4200, QT_TRANSLATE_NOOP("MvPageFormat", "Panorama 42 × 14,85 cm")},
    Paper{"Letter"_L1, 2159, 2794, nullptr},
    Paper{"Legal"_L1, 2159, 3556, nullptr},
    Paper{"Tabloid"_L1, 2794, 4318, nullptr},
};

const Paper *paperOf(const QString &name)
{
    const auto isMeant = [text = name.trimmed()](const Paper &paper) {
        return text.compare(paper.name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(papers.begin(), papers.end(), isMeant);
    return found == papers.end() ? nullptr : &*found;
}

constexpr std::array shapeWords{
    std::pair{MvPageFormat::Shape::Landscape, "landscape"_L1}, std::pair{MvPageFormat::Shape::Portrait, "portrait"_L1},
    std::pair{MvPageFormat::Shape::Square, "square"_L1},       std::pair{MvPageFormat::Shape::Panorama, "panorama"_L1},
    std::pair{MvPageFormat::Shape::Narrow, "narrow"_L1},
};

constexpr std::array bindingWords{
    std::pair{MvPageFormat::Binding::None, "none"_L1},
    std::pair{MvPageFormat::Binding::Top, "top"_L1},
    std::pair{MvPageFormat::Binding::Left, "left"_L1},
    std::pair{MvPageFormat::Binding::Right, "right"_L1},
};

QSizeF sizeFromText(const QString &text)
{
    static const QRegularExpression pattern(
        u"^([0-9]{1,4}(?:[.,][0-9]+)?) ?[x×] ?([0-9]{1,4}(?:[.,][0-9]+)?) ?(mm|cm)?$"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    const double unit = match.captured(3).compare("cm"_L1, Qt::CaseInsensitive) == 0 ? 100.0 : 10.0;
    const auto side = [&](int group) { return match.captured(group).replace(u',', u'.').toDouble() * unit; };
    return {side(1), side(2)};
}

bool isPossibleSide(double length)
{
    return length >= minimumSide && length <= maximumSide; // not for NaN
}

} // namespace

MvPageFormat::MvPageFormat(const QSizeF &trimSize)
{
    if (isPossibleSide(trimSize.width()) && isPossibleSide(trimSize.height()))
        m_trimSize = trimSize;
}

MvPageFormat MvPageFormat::fromName(const QString &name)
{
    if (const Paper *paper = paperOf(name))
        return MvPageFormat(QSizeF(paper->width, paper->height));
    return MvPageFormat(sizeFromText(name.trimmed()));
}

QStringList MvPageFormat::names()
{
    QStringList names;
    for (const Paper &paper : papers)
        names.append(paper.name);
    return names;
}

bool MvPageFormat::isName(const QString &name)
{
    return paperOf(name);
}

QString MvPageFormat::label(const QString &name)
{
    const Paper *paper = paperOf(name);
    return paper && paper->label ? tr(paper->label) : name;
}

MvPageFormat::Orientation MvPageFormat::orientation() const
{
    return m_trimSize.width() > m_trimSize.height() ? Orientation::Landscape : Orientation::Portrait;
}

void MvPageFormat::setOrientation(Orientation orientation)
{
    if (this->orientation() != orientation)
        m_trimSize.transpose();
}

MvPageFormat::Shape MvPageFormat::shape() const
{
    const double ratio = isValid() ? m_trimSize.width() / m_trimSize.height() : 1.0;
    if (ratio >= widestPage)
        return Shape::Panorama;
    if (ratio <= 1.0 / widestPage)
        return Shape::Narrow;
    if (ratio > squarestPage)
        return Shape::Landscape;
    return ratio < 1.0 / squarestPage ? Shape::Portrait : Shape::Square;
}

QString MvPageFormat::shapeName(Shape shape)
{
    const auto row =
        std::find_if(shapeWords.begin(), shapeWords.end(), [&](const auto &word) { return word.first == shape; });
    return row == shapeWords.end() ? QString() : QString(row->second);
}

QList<MvPageFormat::Shape> MvPageFormat::shapes()
{
    return {Shape::Landscape, Shape::Portrait, Shape::Square, Shape::Panorama, Shape::Narrow};
}

QString MvPageFormat::bindingName(Binding binding)
{
    const auto row =
        std::find_if(bindingWords.begin(), bindingWords.end(), [&](const auto &word) { return word.first == binding; });
    return row == bindingWords.end() ? QString() : QString(row->second);
}

MvPageFormat::Binding MvPageFormat::bindingFromName(const QString &name)
{
    const auto row =
        std::find_if(bindingWords.begin(), bindingWords.end(), [&](const auto &word) { return name == word.second; });
    return row == bindingWords.end() ? Binding::None : row->first;
}

void MvPageFormat::setBindingZone(double zone)
{
    m_bindingZone = zone > 0.0 ? std::min(zone, widestZone) : 0.0;
}

void MvPageFormat::setSafeMargin(double margin)
{
    m_safeMargin = margin > 0.0 ? std::min(margin, widestSafeMargin) : 0.0;
}

/// The trimmed page without the binding zone, of which a small page gives a quarter at most.
QRectF MvPageFormat::withoutBinding() const
{
    const double across = m_binding == Binding::Top ? m_trimSize.height() : m_trimSize.width();
    const double zone = std::min(m_bindingZone, across / 4.0);
    switch (m_binding) {
    case Binding::None:
        break;
    case Binding::Top:
        return trimRect().adjusted(0, zone, 0, 0);
    case Binding::Left:
        return trimRect().adjusted(zone, 0, 0, 0);
    case Binding::Right:
        return trimRect().adjusted(0, 0, -zone, 0);
    }
    return trimRect();
}

QRectF MvPageFormat::bindingRect() const
{
    const QRectF rest = withoutBinding();
    switch (m_binding) {
    case Binding::None:
        break;
    case Binding::Top:
        return {QPointF(), QSizeF(m_trimSize.width(), rest.top())};
    case Binding::Left:
        return {QPointF(), QSizeF(rest.left(), m_trimSize.height())};
    case Binding::Right:
        return {rest.topRight(), QSizeF(m_trimSize.width() - rest.right(), m_trimSize.height())};
    }
    return {};
}

QRectF MvPageFormat::safeRect() const
{
    const QRectF inside = trimRect().adjusted(m_safeMargin, m_safeMargin, -m_safeMargin, -m_safeMargin);
    return isValid() ? inside & withoutBinding() : QRectF();
}

double MvPageFormat::fieldMargin() const
{
    return std::max(std::min(m_trimSize.width(), m_trimSize.height()) / fieldShare, m_safeMargin + besideSafeMargin);
}

QRectF MvPageFormat::fieldRect() const
{
    if (!isValid())
        return {};
    const double margin = std::min(fieldMargin(), std::min(m_trimSize.width(), m_trimSize.height()) / 4.0);
    return withoutBinding().adjusted(margin, margin, -margin, -margin);
}

double MvPageFormat::gutter() const
{
    const QRectF field = fieldRect();
    return std::min(
        {fieldMargin() / 2.0, mostGutters * field.width() / fieldColumns, mostGutters * field.height() / fieldRows});
}

QRectF MvPageFormat::fieldArea(int firstColumn, int lastColumn, int firstRow, int lastRow) const
{
    const QRectF field = fieldRect();
    const double between = gutter();
    const double columnStep = (field.width() + between) / fieldColumns;
    const double rowStep = (field.height() + between) / fieldRows;
    return {QPointF(field.left() + (firstColumn - 1) * columnStep, field.top() + (firstRow - 1) * rowStep),
            QPointF(field.left() + lastColumn * columnStep - between, field.top() + lastRow * rowStep - between)};
}

void MvPageFormat::setBleed(double bleed)
{
    m_bleed = bleed > 0.0 ? std::min(bleed, maximumBleed) : 0.0;
}

QRectF MvPageFormat::contentRect() const
{
    if (!isValid())
        return {};
    const double shortSide = std::min(m_trimSize.width(), m_trimSize.height());
    const double margin = std::clamp(0.06 * shortSide, narrowestMargin, widestMargin);
    const QRectF usual = trimRect().adjusted(margin, std::min(bindingMargin, 0.25 * shortSide), -margin, -margin);
    if (m_binding == Binding::None)
        return usual;
    const double gap = std::min(besideBinding, margin);
    const QRectF rest = withoutBinding();
    QRectF rect = trimRect().adjusted(margin, margin, -margin, -margin);
    rect &= m_binding == Binding::Top ? rest.adjusted(0, gap, 0, 0) : rest.adjusted(gap, 0, -gap, 0);
    return rect;
}

MvSpaceMagnitude MvPageFormat::magnitude() const
{
    return MvSpaceMagnitude::ofPage(m_trimSize.width(), m_trimSize.height());
}
