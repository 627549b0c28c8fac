// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarCellColorInfo.h"

#include "MvXML/MvXMLBuilder.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr MvParityLogicEnum bothParities = MvParityLogicEnum::both;

MvCalendarCellColorKey allTypes(const MvCalendarCellColorRole &role, const MvParityLogic &parity)
{
    return {role, MvCalendarCellType::allTypes(), parity};
}

} // namespace

QColor MvCalendarCellColorInfo::color(const MvCalendarCellColorKey &key) const
{
    return m_colors.value(key, Qt::transparent);
}

QColor MvCalendarCellColorInfo::anyColor(const MvCalendarCellColorRole &role) const
{
    const MvColorList stored = colors(allTypes(role, bothParities));
    return stored.isEmpty() ? QColor(Qt::transparent) : stored.constFirst();
}

MvColorList MvCalendarCellColorInfo::colors(const MvCalendarCellColorKey &key) const
{
    MvColorList stored;
    const QList<MvCalendarCellColorKey> keys = key.unfolded();
    for (const MvCalendarCellColorKey &single : keys) {
        const auto it = m_colors.constFind(single);
        if (it != m_colors.cend())
            stored.append(*it);
    }
    return stored;
}

void MvCalendarCellColorInfo::setColor(const QColor &color, const MvCalendarCellColorKey &key)
{
    const QColor fileColor = QColor::fromRgba(color.rgba()); // what a file can hold: 8 bits per part
    const QList<MvCalendarCellColorKey> keys = key.unfolded();
    for (const MvCalendarCellColorKey &single : keys)
        m_colors.insert(single, fileColor);
    updateHashValue();
}

void MvCalendarCellColorInfo::copyColors(const MvCalendarCellType &from, const MvCalendarCellType &to)
{
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
        store(role, to, pair(role, from));
    updateHashValue();
}

void MvCalendarCellColorInfo::copyParities(bool from, bool to)
{
    const QList<MvCalendarCellColorKey> keys = sortedKeys();
    for (const MvCalendarCellColorKey &key : keys) {
        if (key.parityLogic() == MvParityLogic(from))
            m_colors.insert(key.convertedTo(MvParityLogic(to)), color(key));
    }
    updateHashValue();
}

bool MvCalendarCellColorInfo::haveSameColors(const MvCalendarCellType &a, const MvCalendarCellType &b) const
{
    const QList<MvCalendarCellColorRole> roles = MvCalendarCellColorRole::allRoles();
    return std::all_of(roles.cbegin(), roles.cend(),
                       [&](const MvCalendarCellColorRole &role) { return pair(role, a) == pair(role, b); });
}

bool MvCalendarCellColorInfo::distinguishesParities() const
{
    for (auto it = m_colors.cbegin(); it != m_colors.cend(); ++it) {
        const MvParityLogic other(!it.key().sourceParity());
        if (color(it.key().convertedTo(other)) != it.value())
            return true;
    }
    return false;
}

bool MvCalendarCellColorInfo::allCellsHaveTheSameColor(const MvCalendarCellColorRole &role) const
{
    const MvColorList stored = colors(allTypes(role, bothParities));
    return std::adjacent_find(stored.cbegin(), stored.cend(), std::not_equal_to<>()) == stored.cend();
}

bool MvCalendarCellColorInfo::hasChromaticBackground() const
{
    const MvColorList stored = colors(allTypes(MvCalendarCellColorRoleEnum::bgcolor, bothParities));
    return std::any_of(stored.cbegin(), stored.cend(),
                       [](const QColor &color) { return color.alpha() > 0 && color.hsvSaturation() > 0; });
}

MvCalendarCellType MvCalendarCellColorInfo::usedCellTypes() const
{
    MvCalendarCellType types;
    for (auto it = m_colors.keyBegin(); it != m_colors.keyEnd(); ++it)
        types |= it->cellType();
    return types;
}

void MvCalendarCellColorInfo::read(const QDomElement &element)
{
    const auto defaults = MvCalendarCellDefaultColors::fromXML(element.firstChildElement(u"celldefault"_s));
    m_colors.clear();
    const QString cellTag = u"cell"_s;
    for (QDomElement cell = element.firstChildElement(cellTag); !cell.isNull();
         cell = cell.nextSiblingElement(cellTag)) {
        MvCalendarCellType types;
        types.fromXML(cell);
        for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
            store(role, types, MvCalendariumCellColorPair::fromXML(cell, role, defaults.pair(role)));
    }
    createMissingInfos(defaults);
    updateHashValue();
}

void MvCalendarCellColorInfo::write(QDomElement &element) const
{
    const MvCalendarCellDefaultColors defaults = generateDefaults();
    QDomElement defaultElement = MvXMLBuilder::buildDomElement(element, u"celldefault"_s);
    defaults.toXML(defaultElement);
    const QList<MvCalendarCellType> types = usedCellTypes().singleTypes();
    for (const MvCalendarCellType &type : types)
        writeCell(element, type, defaults);
}

QString MvCalendarCellColorInfo::describeDifference(const MvCalendarCellColorInfo &other) const
{
    QStringList lines;
    QList<MvCalendarCellColorKey> keys = sortedKeys();
    for (const MvCalendarCellColorKey &key : other.sortedKeys()) {
        if (!colorIsDefined(key))
            lines.append(u"first missing key: "_s + key.toString());
    }
    for (const MvCalendarCellColorKey &key : std::as_const(keys)) {
        if (!other.colorIsDefined(key))
            lines.append(u"second missing key: "_s + key.toString());
        else if (color(key) != other.color(key))
            lines.append(u"difference colors for %1: %2 vs %3"_s.arg(
                key.toString(), MvXMLBuilder::colorText(color(key)), MvXMLBuilder::colorText(other.color(key))));
    }
    return lines.join(u", "_s);
}

bool MvCalendarCellColorInfo::operator==(const MvCalendarCellColorInfo &other) const
{
    return m_hashValue == other.m_hashValue && m_colors == other.m_colors;
}

MvCalendariumCellColorPair MvCalendarCellColorInfo::pair(const MvCalendarCellColorRole &role,
                                                         const MvCalendarCellType &type) const
{
    return {color({role, type, MvParityLogicEnum::even}), color({role, type, MvParityLogicEnum::odd})};
}

void MvCalendarCellColorInfo::store(const MvCalendarCellColorRole &role, const MvCalendarCellType &types,
                                    const MvCalendariumCellColorPair &pair)
{
    const QList<MvCalendarCellColorKey> keys = MvCalendarCellColorKey(role, types, bothParities).unfolded();
    for (const MvCalendarCellColorKey &key : keys)
        m_colors.insert(key, pair.color(key.sourceParity()));
}

void MvCalendarCellColorInfo::createMissingInfos(const MvCalendarCellDefaultColors &defaults)
{
    const QList<MvCalendarCellType> types = MvCalendarCellType::allTypes().singleTypes();
    for (const MvCalendarCellType &type :
         types) { // bits of source types are lower than those of the types derived from them
        if (hasColorsOf(type))
            continue;
        const MvCalendarCellType source = type.synthetizingSource();
        for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
            store(role, type, source.isValid() ? pair(role, source) : defaults.pair(role));
    }
}

bool MvCalendarCellColorInfo::hasColorsOf(const MvCalendarCellType &type) const
{
    return colorIsDefined({MvCalendarCellColorRoleEnum::bgcolor, type, MvParityLogicEnum::even});
}

MvCalendarCellDefaultColors MvCalendarCellColorInfo::generateDefaults() const
{
    MvCalendarCellDefaultColors defaults;
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles())
        defaults.setPair(role, {findDefault(role, true), findDefault(role, false)});
    return defaults;
}

QColor MvCalendarCellColorInfo::findDefault(const MvCalendarCellColorRole &role, bool even) const
{
    const QColor cluster = colors(allTypes(role, MvParityLogic(even))).findClusterPoint();
    return cluster.isValid() ? cluster : role.defaultColor();
}

void MvCalendarCellColorInfo::writeCell(QDomElement &parent, const MvCalendarCellType &type,
                                        const MvCalendarCellDefaultColors &defaults) const
{
    QDomElement cell = MvXMLBuilder::buildDomElement(parent, u"cell"_s);
    type.toXML(cell);
    // without an element of its own a holiday or vacation type would be read with the colours of its source
    const MvCalendarCellType source = type.synthetizingSource();
    const QList<MvCalendarCellColorRole> roles = MvCalendarCellColorRole::allRoles();
    const bool differsFromDefaults = std::any_of(
        roles.cbegin(), roles.cend(), [&](const auto &role) { return pair(role, type) != defaults.pair(role); });
    const bool mustBeWritten = !differsFromDefaults && source.isValid() && !haveSameColors(type, source);
    if (!differsFromDefaults && !mustBeWritten) {
        parent.removeChild(cell);
        return;
    }
    for (const MvCalendarCellColorRole &role : roles) {
        if (mustBeWritten || pair(role, type) != defaults.pair(role))
            pair(role, type).toXML(cell, role);
    }
}

QList<MvCalendarCellColorKey> MvCalendarCellColorInfo::sortedKeys() const
{
    QList<MvCalendarCellColorKey> keys = m_colors.keys();
    std::sort(keys.begin(), keys.end());
    return keys;
}

size_t MvCalendarCellColorInfo::createHashValue() const
{
    size_t hash = 0;
    for (auto it = m_colors.cbegin(); it != m_colors.cend(); ++it)
        hash += qHashMulti(0, it.key().hashKey(), it.value().rgba64().operator quint64()); // order does not matter
    return hash;
}
