// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutCellInfo.h"

#include "MvCore/MvSharedData.h"
#include "MvModelBase/MvFontCreator.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLKeywords.h"
#include "MvXML/MvXMLParser.h"

#include <QDomElement>
#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int defaultBorderWidth = 2;
const QString defaultAlignment = u"AlignCenter"_s;

// values from files may be out of range
constexpr int mostBorderWidth = 200;
constexpr int mostFontSize = 10000;
constexpr double mostPadding = 10000.0;

double paddingOf(const QDomElement &element, const QString &key)
{
    return std::clamp(MvXMLParser::doubleAttribute(element, key), -mostPadding, mostPadding);
}
} // namespace

struct MvCalendariumLayoutCellInfoImpl : MvSharedData
{
    int borderWidth = defaultBorderWidth;
    MvCalendarBorderType borderType;
    QFont font = MvFontCreator::createDefaultFont();
    int maxFontSize = 0;
    Qt::Alignment alignment = Qt::AlignCenter;
    QMarginsF padding;

    bool operator==(const MvCalendariumLayoutCellInfoImpl &) const = default;
};

MvCalendariumLayoutCellInfo::MvCalendariumLayoutCellInfo()
    : d(new MvCalendariumLayoutCellInfoImpl)
{}

MvCalendariumLayoutCellInfo::MvCalendariumLayoutCellInfo(const QDomElement &element)
    : MvCalendariumLayoutCellInfo()
{
    d->borderWidth =
        std::clamp(MvXMLParser::intAttribute(element, u"bordersize"_s, defaultBorderWidth), 0, mostBorderWidth);
    d->borderType = MvCalendarBorderType(MvXMLParser::textAttribute(element, u"bordertype"_s));
    d->font = MvXMLParser::readFont(element.firstChildElement(u"font"_s), d.constData()->font);
    d->maxFontSize = std::clamp(MvXMLParser::intAttribute(element, u"maxfontsize"_s, 0), 0, mostFontSize);
    d->alignment = MvXMLKeywords::alignment(MvXMLParser::textAttribute(element, u"textalign"_s, defaultAlignment));
    d->padding = QMarginsF(paddingOf(element, u"paddingleft"_s), paddingOf(element, u"paddingtop"_s),
                           paddingOf(element, u"paddingright"_s), paddingOf(element, u"paddingbottom"_s));
}

MvCalendariumLayoutCellInfo::~MvCalendariumLayoutCellInfo() = default;
MvCalendariumLayoutCellInfo::MvCalendariumLayoutCellInfo(const MvCalendariumLayoutCellInfo &) = default;
MvCalendariumLayoutCellInfo::MvCalendariumLayoutCellInfo(MvCalendariumLayoutCellInfo &&) noexcept = default;
MvCalendariumLayoutCellInfo &MvCalendariumLayoutCellInfo::operator=(const MvCalendariumLayoutCellInfo &) = default;
MvCalendariumLayoutCellInfo &MvCalendariumLayoutCellInfo::operator=(MvCalendariumLayoutCellInfo &&) noexcept = default;

int MvCalendariumLayoutCellInfo::cellBorderWidth() const
{
    return d->borderWidth;
}

MvCalendarBorderType MvCalendariumLayoutCellInfo::borderType() const
{
    return d->borderType;
}

QFont MvCalendariumLayoutCellInfo::font() const
{
    return d->font;
}

int MvCalendariumLayoutCellInfo::maxFontSize() const
{
    return d->maxFontSize;
}

Qt::Alignment MvCalendariumLayoutCellInfo::textAlignment() const
{
    return d->alignment;
}

QMarginsF MvCalendariumLayoutCellInfo::padding() const
{
    return d->padding;
}

void MvCalendariumLayoutCellInfo::toXML(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, u"bordersize"_s, d->borderWidth);
    MvXMLBuilder::addAttribute(element, u"bordertype"_s, d->borderType.encodeCSV());
    MvXMLBuilder::buildFont(element, d->font);
    MvXMLBuilder::addAttribute(element, u"maxfontsize"_s, d->maxFontSize);
    MvXMLBuilder::addAttribute(element, u"textalign"_s, MvXMLKeywords::alignmentText(d->alignment));
    MvXMLBuilder::addAttribute(element, u"paddingbottom"_s, d->padding.bottom());
    MvXMLBuilder::addAttribute(element, u"paddingright"_s, d->padding.right());
    MvXMLBuilder::addAttribute(element, u"paddingtop"_s, d->padding.top());
    MvXMLBuilder::addAttribute(element, u"paddingleft"_s, d->padding.left());
}

bool operator==(const MvCalendariumLayoutCellInfo &a, const MvCalendariumLayoutCellInfo &b)
{
    return a.d == b.d || *a.d == *b.d;
}
