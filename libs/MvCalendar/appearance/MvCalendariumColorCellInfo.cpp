// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorCellInfo.h"

#include "MvCalendar/MvCalendarCellDefaultColors.h"
#include "MvCore/MvSharedData.h"

#include <QDomElement>

#include <cmath>

struct MvCalendariumColorCellInfoImpl : MvSharedData
{
    MvCalendarCellDefaultColors pairs = MvCalendarCellDefaultColors::superDefault();
    bool operator==(const MvCalendariumColorCellInfoImpl &) const = default;
};

namespace {

constexpr auto background = MvCalendarCellColorRoleEnum::bgcolor;
constexpr auto text = MvCalendarCellColorRoleEnum::textcolor;

double linearPart(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linearPart(color.redF()) + 0.7152 * linearPart(color.greenF()) + 0.0722 * linearPart(color.blueF());
}

QColor over(const QColor &top, const QColor &bottom)
{
    const float alpha = top.alphaF();
    return QColor::fromRgbF(top.redF() * alpha + bottom.redF() * (1 - alpha),
                            top.greenF() * alpha + bottom.greenF() * (1 - alpha),
                            top.blueF() * alpha + bottom.blueF() * (1 - alpha));
}

} // namespace

MvCalendariumColorCellInfo::MvCalendariumColorCellInfo()
    : d(new MvCalendariumColorCellInfoImpl)
{}

MvCalendariumColorCellInfo::~MvCalendariumColorCellInfo() = default;
MvCalendariumColorCellInfo::MvCalendariumColorCellInfo(const MvCalendariumColorCellInfo &) = default;
MvCalendariumColorCellInfo::MvCalendariumColorCellInfo(MvCalendariumColorCellInfo &&) noexcept = default;
MvCalendariumColorCellInfo &MvCalendariumColorCellInfo::operator=(const MvCalendariumColorCellInfo &) = default;
MvCalendariumColorCellInfo &MvCalendariumColorCellInfo::operator=(MvCalendariumColorCellInfo &&) noexcept = default;

QColor MvCalendariumColorCellInfo::fontColor(bool even) const
{
    return color(text, even);
}

QColor MvCalendariumColorCellInfo::backgroundColor(bool even) const
{
    return color(background, even);
}

void MvCalendariumColorCellInfo::setFontColor(const QColor &color, bool even)
{
    setColor(color, text, even);
}

void MvCalendariumColorCellInfo::setBackgroundColor(const QColor &color, bool even)
{
    setColor(color, background, even);
}

QColor MvCalendariumColorCellInfo::color(const MvCalendarCellColorRole &role, bool even) const
{
    return d->pairs.pair(role).color(even);
}

void MvCalendariumColorCellInfo::setColor(const QColor &color, const MvCalendarCellColorRole &role, bool even)
{
    MvCalendariumCellColorPair pair = d.constData()->pairs.pair(role);
    if (pair.color(even) == color)
        return;
    pair.setColor(color, even);
    d->pairs.setPair(role, pair);
}

QList<QColor> MvCalendariumColorCellInfo::usedColors() const
{
    QList<QColor> colors;
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles()) {
        for (const bool even : {true, false}) {
            const QColor candidate = color(role, even);
            if (candidate.alpha() > 0 && !colors.contains(candidate))
                colors.append(candidate);
        }
    }
    return colors;
}

void MvCalendariumColorCellInfo::toXML(QDomElement &element) const
{
    d->pairs.toXML(element);
}

double MvCalendariumColorCellInfo::colorContrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

double MvCalendariumColorCellInfo::cellContrast(const QColor &paper, bool even) const
{
    const QColor ground = over(backgroundColor(even), paper);
    return colorContrast(over(fontColor(even), ground), ground);
}

double MvCalendariumColorCellInfo::minimumCellContrast(const QColor &paper) const
{
    return qMin(cellContrast(paper, true), cellContrast(paper, false));
}

bool operator==(const MvCalendariumColorCellInfo &a, const MvCalendariumColorCellInfo &b)
{
    return a.d == b.d || *a.d == *b.d;
}
