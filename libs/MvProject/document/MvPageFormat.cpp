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

// DIN EN ISO 216, A0 to A6, upright, in tenths of a millimetre
constexpr std::array<std::pair<int, int>, 7> paperSizes = {
    {{8410, 11890}, {5940, 8410}, {4200, 5940}, {2970, 4200}, {2100, 2970}, {1480, 2100}, {1050, 1480}}};

QSizeF sizeFromMillimetres(const QString &text)
{
    static const QRegularExpression pattern(u"^([0-9]{1,4}(?:[.,][0-9]+)?) ?[x×] ?([0-9]{1,4}(?:[.,][0-9]+)?)$"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    const auto side = [&](int group) { return match.captured(group).replace(u',', u'.').toDouble() * 10.0; };
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
    const QString text = name.trimmed();
    const qsizetype number = names().indexOf(text.toUpper());
    if (number >= 0)
        return MvPageFormat(QSizeF(paperSizes[size_t(number)].first, paperSizes[size_t(number)].second));
    return MvPageFormat(sizeFromMillimetres(text));
}

QStringList MvPageFormat::names()
{
    QStringList names;
    for (size_t number = 0; number < paperSizes.size(); ++number)
        names.append(u"A%1"_s.arg(number));
    return names;
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
    return trimRect().adjusted(margin, std::min(bindingMargin, 0.25 * shortSide), -margin, -margin);
}

MvSpaceMagnitude MvPageFormat::magnitude() const
{
    return MvSpaceMagnitude::ofPage(m_trimSize.width(), m_trimSize.height());
}
