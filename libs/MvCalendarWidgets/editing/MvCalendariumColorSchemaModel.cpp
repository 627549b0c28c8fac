// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaModel.h"

#include "MvCalendar/MvCalendariumColorCellInfo.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvGUIWidgets/MvColorDelegate.h"
#include "MvGUIWidgets/MvColorSwatch.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr MvCalendarCellTypeEnum vacation = CALENDAR_CELL_TYPE_SCHOOL_VACATION;
constexpr MvCalendarCellTypeEnum holiday = CALENDAR_CELL_TYPE_HOLIDAY;
constexpr double parityTint = 0.04; // lightness by which odd weeks differ at first

MvCalendarCellType headOf(const MvCalendarCellType &follower)
{
    return follower == vacation ? CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION : CALENDAR_CELL_TYPE_HEAD_HOLIDAY;
}

MvCalendarCellType headTypes()
{
    return MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY | CALENDAR_CELL_TYPE_HEAD_SATURDAY |
                              CALENDAR_CELL_TYPE_HEAD_SUNDAY | CALENDAR_CELL_TYPE_HEAD_HOLIDAY |
                              CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION);
}

MvCalendarCellType pageTypes()
{
    return MvCalendarCellType(CALENDAR_CELL_TYPE_TITLE | CALENDAR_CELL_TYPE_TOPLINE | CALENDAR_CELL_TYPE_MONTH |
                              CALENDAR_CELL_TYPE_YEAR);
}

MvCalendarCellType tintedTypes()
{
    return MvCalendarCellType(CALENDAR_CELL_TYPE_WEEKDAY | CALENDAR_CELL_TYPE_SATURDAY | CALENDAR_CELL_TYPE_SUNDAY |
                              CALENDAR_CELL_TYPE_HOLIDAY | CALENDAR_CELL_TYPE_SCHOOL_VACATION |
                              CALENDAR_CELL_TYPE_WEEK_OF_YEAR);
}

bool haveSameParities(const MvCalendariumColorSchema &schema, const MvCalendarCellType &type)
{
    const QList<MvCalendarCellColorRole> roles = MvCalendarCellColorRole::allRoles();
    return std::all_of(roles.cbegin(), roles.cend(), [&](const MvCalendarCellColorRole &role) {
        return schema.cellColor({role, type, MvParityLogicEnum::even}) ==
               schema.cellColor({role, type, MvParityLogicEnum::odd});
    });
}

/// The colours of the types in the given weeks are taken from another schema.
void takeColors(MvCalendariumColorSchema &schema, const MvCalendariumColorSchema &from, const MvCalendarCellType &types,
                const MvParityLogic &parity)
{
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles()) {
        const QList<MvCalendarCellColorKey> keys = MvCalendarCellColorKey(role, types, parity).unfolded();
        for (const MvCalendarCellColorKey &key : keys) {
            if (schema.cellColor(key) != from.cellColor(key))
                schema.setCellColor(from.cellColor(key), key);
        }
    }
}

/// The background a little lighter or darker, in the same hue; a transparent one becomes a faint layer of ink.
QColor tinted(const QColor &background, const QColor &ink)
{
    if (background.alpha() == 0) {
        QColor veil = ink;
        veil.setAlphaF(static_cast<float>(parityTint));
        return veil;
    }
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    float alpha = 0;
    background.getHslF(&hue, &saturation, &lightness, &alpha);
    lightness += static_cast<float>(lightness > 0.5F ? -parityTint : parityTint);
    return QColor::fromHslF(qMax(0.0F, hue), saturation, lightness, alpha);
}

void tint(MvCalendariumColorSchema &schema, const MvCalendarCellType &type, const QList<MvParityLogicEnum> &weeks)
{
    for (const MvParityLogicEnum week : weeks) {
        const MvCalendarCellColorKey background(MvCalendarCellColorRoleEnum::bgcolor, type, week);
        const QColor ink = schema.cellColor({MvCalendarCellColorRoleEnum::textcolor, type, week});
        schema.setCellColor(tinted(schema.cellColor(background), ink), background);
    }
}

} // namespace

MvCalendariumColorSchemaModel::MvCalendariumColorSchemaModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void MvCalendariumColorSchemaModel::setAppearance(const MvCalendariumAppearance &appearance)
{
    if (m_appearance == appearance)
        return;
    if (!(m_appearance.colorSchema() == appearance.colorSchema())) {
        m_beforeVacations.reset();
        m_beforeHolidays.reset();
        m_beforeParities.reset();
    }
    m_appearance = appearance;
    m_hasHeadPerDay = MvCalendariumRendererFactory::instance().hasOneHeaderPerDay(appearance);
    const States states = statesOf(appearance.colorSchema());
    const States before = std::exchange(m_states, states); // the rows depend on it
    showRows();
    m_states = before;
    reportStates(states);
}

MvCalendarCellType MvCalendariumColorSchemaModel::cellType(int row) const
{
    return m_rows.value(row).type;
}

MvParityLogic MvCalendariumColorSchemaModel::parity(int row) const
{
    return m_rows.value(row).parity;
}

int MvCalendariumColorSchemaModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int MvCalendariumColorSchemaModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numberOfColumns;
}

Qt::ItemFlags MvCalendariumColorSchemaModel::flags(const QModelIndex &index) const
{
    if (!hasCell(index))
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == TypeColumn ? flags : flags | Qt::ItemIsEditable;
}

QVariant MvCalendariumColorSchemaModel::data(const QModelIndex &index, int role) const
{
    if (!hasCell(index))
        return {};
    if (index.column() != TypeColumn)
        return colorData(index, role);
    const Row &row = m_rows[index.row()];
    if (role == Qt::ToolTipRole && row.parity != MvParityLogicEnum::both)
        return tr("Gezählt von der ersten Woche der Seite an");
    return role == Qt::DisplayRole ? QVariant(rowName(row)) : QVariant();
}

QVariant MvCalendariumColorSchemaModel::colorData(const QModelIndex &index, int role) const
{
    const QColor color = colorSchema().cellColor(key(index).correctedToSourceParity());
    const QString warning = index.column() == TextColumn ? contrastWarning(index.row()) : QString();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return color;
    case Qt::AccessibleTextRole:
        return MvColorSwatch::name(color);
    case Qt::AccessibleDescriptionRole:
        return warning;
    case Qt::ToolTipRole:
        return warning.isEmpty() ? MvColorSwatch::name(color) : MvColorSwatch::name(color) + u'\n' + warning;
    case MvColorDelegate::WarningRole:
        return !warning.isEmpty();
    default:
        return {};
    }
}

QVariant MvCalendariumColorSchemaModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TypeColumn:
        return tr("Feld");
    case BackgroundColumn:
        return tr("Hintergrund");
    case TextColumn:
        return tr("Textfarbe");
    default:
        return {};
    }
}

bool MvCalendariumColorSchemaModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto color = value.value<QColor>();
    if (role != Qt::EditRole || !color.isValid() || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    MvCalendariumColorSchema schema = colorSchema();
    schema.setCellColor(color, key(index));
    copyToFollowers(schema, cellType(index.row()));
    apply(schema, m_states);
    return true;
}

void MvCalendariumColorSchemaModel::setTreatVacationsLikeSaturdays(bool on)
{
    if (on == m_states.vacationsLikeSaturdays)
        return;
    apply(withCoupling(vacation, on, m_beforeVacations), m_states);
}

void MvCalendariumColorSchemaModel::setTreatHolidaysLikeSundays(bool on)
{
    if (on == m_states.holidaysLikeSundays)
        return;
    apply(withCoupling(holiday, on, m_beforeHolidays), m_states);
}

void MvCalendariumColorSchemaModel::setUseParityLogic(bool on)
{
    if (on == m_states.parities)
        return;
    States states = m_states;
    states.parities = on;
    MvCalendariumColorSchema schema = colorSchema();
    if (on) {
        schema = m_beforeParities ? withOddWeeksFrom(*m_beforeParities) : withTintedOddWeeks();
    } else {
        m_beforeParities = schema;
        schema.copyParities(true, false);
    }
    apply(schema, states);
}

void MvCalendariumColorSchemaModel::enableGrid(bool on)
{
    MvCalendariumColorSchema schema = colorSchema();
    MvBorderConfig grid = schema.gridConfig();
    grid.setIsEnabled(on);
    schema.setGridConfig(grid);
    States states = m_states;
    states.gridEnabled = on;
    apply(schema, states);
}

void MvCalendariumColorSchemaModel::setUserGridColor(const QColor &color)
{
    if (!color.isValid())
        return;
    MvCalendariumColorSchema schema = colorSchema();
    MvBorderConfig grid = schema.gridConfig();
    grid.setColor(color);
    schema.setGridConfig(grid);
    States states = m_states;
    states.gridColor = color;
    apply(schema, states);
}

MvCalendariumColorSchemaModel::States
MvCalendariumColorSchemaModel::statesOf(const MvCalendariumColorSchema &schema) const
{
    const MvBorderConfig grid = schema.gridConfig();
    return {schema.haveSameColors(CALENDAR_CELL_TYPE_SATURDAY, vacation),
            schema.haveSameColors(CALENDAR_CELL_TYPE_SUNDAY, holiday), schema.distinguishesParities(), grid.isEnabled(),
            grid.color()};
}

QList<MvCalendariumColorSchemaModel::Row> MvCalendariumColorSchemaModel::createRows() const
{
    QList<Row> rows;
    const QList<MvCalendarCellType> types = MvCalendariumRendererFactory::instance().usedCellTypes(m_appearance);
    for (const MvCalendarCellType &type : types) {
        if (alternates(type)) {
            rows.append({type, MvParityLogicEnum::even});
            rows.append({type, MvParityLogicEnum::odd});
        } else {
            rows.append({type, MvParityLogicEnum::both});
        }
    }
    return rows;
}

bool MvCalendariumColorSchemaModel::alternates(const MvCalendarCellType &type) const
{
    if (!m_states.parities)
        return false;
    if (!haveSameParities(colorSchema(), type))
        return true;
    return !type.hasAnyOf(pageTypes()) && (m_hasHeadPerDay || !type.hasAnyOf(headTypes()));
}

QString MvCalendariumColorSchemaModel::rowName(const Row &row) const
{
    switch (row.parity.value()) {
    case MvParityLogicEnum::even:
        return tr("%1, gerade Wochen").arg(row.type.description());
    case MvParityLogicEnum::odd:
        return tr("%1, ungerade Wochen").arg(row.type.description());
    default:
        return row.type.description();
    }
}

MvCalendarCellColorKey MvCalendariumColorSchemaModel::key(const QModelIndex &index) const
{
    const Row &row = m_rows[index.row()];
    return {index.column() == BackgroundColumn ? MvCalendarCellColorRoleEnum::bgcolor
                                               : MvCalendarCellColorRoleEnum::textcolor,
            row.type, row.parity};
}

double MvCalendariumColorSchemaModel::contrast(int row) const
{
    const Row &cell = m_rows[row];
    MvCalendariumColorCellInfo colors = cellColors(cell);
    MvCalendariumColorCellInfo page = cellColors({CALENDAR_CELL_TYPE_EMPTY, cell.parity}); // the ground of the page
    double lowest = 21.0;
    for (const bool even : cell.parity.targetParities()) {
        const QColor ground = page.backgroundColor(even);
        const double opacity = ground.alphaF();
        const auto onWhite = [opacity](int part) { return qRound(part * opacity + 255 * (1.0 - opacity)); };
        const QColor paper(onWhite(ground.red()), onWhite(ground.green()), onWhite(ground.blue()));
        lowest = qMin(lowest, colors.cellContrast(paper, even));
    }
    return lowest;
}

MvCalendariumColorCellInfo MvCalendariumColorSchemaModel::cellColors(const Row &row) const
{
    MvCalendariumColorCellInfo colors;
    for (const MvCalendarCellColorRole &role : MvCalendarCellColorRole::allRoles()) {
        for (const bool even : {true, false})
            colors.setColor(colorSchema().cellColor({role, row.type, MvParityLogic(even)}), role, even);
    }
    return colors;
}

QString MvCalendariumColorSchemaModel::contrastWarning(int row) const
{
    const QColor text = colorSchema().cellColor(key(index(row, TextColumn)).correctedToSourceParity());
    const double ratio = text.alpha() == 0 ? recommendedContrast : contrast(row); // invisible text is intended
    if (ratio >= recommendedContrast)
        return {};
    const QLocale locale = MvApplicationLocale::instance().locale();
    return tr("Kontrast %1 : 1, empfohlen mindestens %2 : 1")
        .arg(locale.toString(std::floor(ratio * 10) / 10, 'f', 1), locale.toString(recommendedContrast, 'f', 1));
}

bool MvCalendariumColorSchemaModel::isCoupled(const MvCalendarCellType &follower) const
{
    const bool isVacation = follower == vacation || follower == headOf(vacation);
    const bool isOn = isVacation ? m_states.vacationsLikeSaturdays : m_states.holidaysLikeSundays;
    return isOn && colorSchema().haveSameColors(follower.synthetizingSource(), follower);
}

void MvCalendariumColorSchemaModel::copyToFollowers(MvCalendariumColorSchema &schema,
                                                    const MvCalendarCellType &source) const
{
    for (const MvCalendarCellType &follower :
         {MvCalendarCellType(vacation), MvCalendarCellType(holiday), headOf(vacation), headOf(holiday)}) {
        if (follower.synthetizingSource() == source && isCoupled(follower))
            schema.copyColors(source, follower);
    }
}

/// Keeps the schema before switching on, to bring its colours back. Where these do not tell the follower from its
/// source, or nothing was kept, a slightly different background does.
MvCalendariumColorSchema MvCalendariumColorSchemaModel::withCoupling(const MvCalendarCellType &follower, bool on,
                                                                     SavedSchema &before) const
{
    MvCalendariumColorSchema schema = colorSchema();
    for (const MvCalendarCellType &type : {follower, headOf(follower)}) {
        if (on)
            schema.copyColors(type.synthetizingSource(), type);
        else if (before)
            takeColors(schema, *before, type, MvParityLogicEnum::both);
    }
    before = on ? SavedSchema(colorSchema()) : std::nullopt;
    if (!m_states.parities)
        schema.copyParities(true, false); // weeks that alternated before stay equal
    if (!on && schema.haveSameColors(follower.synthetizingSource(), follower))
        tint(schema, follower, {MvParityLogicEnum::even, MvParityLogicEnum::odd});
    return schema;
}

MvCalendariumColorSchema MvCalendariumColorSchemaModel::withOddWeeksFrom(const MvCalendariumColorSchema &source) const
{
    MvCalendariumColorSchema schema = colorSchema();
    takeColors(schema, source, MvCalendarCellType::allTypes(), MvParityLogicEnum::odd);
    for (const MvCalendarCellType &follower :
         {MvCalendarCellType(vacation), MvCalendarCellType(holiday), headOf(vacation), headOf(holiday)}) {
        if (isCoupled(follower))
            schema.copyColors(follower.synthetizingSource(), follower);
    }
    return schema;
}

MvCalendariumColorSchema MvCalendariumColorSchemaModel::withTintedOddWeeks() const
{
    MvCalendariumColorSchema schema = colorSchema();
    MvCalendarCellType types = tintedTypes();
    if (m_hasHeadPerDay)
        types |= headTypes();
    for (const MvCalendarCellType &type : types.singleTypes())
        tint(schema, type, {MvParityLogicEnum::odd});
    return schema;
}

/// Keeps the rows, and with them the place in a view, where only their colours have changed.
void MvCalendariumColorSchemaModel::showRows()
{
    const QList<Row> rows = createRows();
    if (rows == m_rows) {
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, numberOfColumns - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

void MvCalendariumColorSchemaModel::reportStates(const States &states)
{
    const States before = std::exchange(m_states, states);
    if (states.vacationsLikeSaturdays != before.vacationsLikeSaturdays)
        Q_EMIT vacationsLikeSaturdaysChanged(states.vacationsLikeSaturdays);
    if (states.holidaysLikeSundays != before.holidaysLikeSundays)
        Q_EMIT holidaysLikeSundaysChanged(states.holidaysLikeSundays);
    if (states.parities != before.parities)
        Q_EMIT parityDifferenceChanged(states.parities);
    if (states.gridEnabled != before.gridEnabled)
        Q_EMIT gridEnabledChanged(states.gridEnabled);
    if (states.gridColor != before.gridColor)
        Q_EMIT gridColorChanged(states.gridColor);
}

void MvCalendariumColorSchemaModel::apply(const MvCalendariumColorSchema &schema, States states)
{
    const States seen = statesOf(schema);
    states.vacationsLikeSaturdays = seen.vacationsLikeSaturdays;
    states.holidaysLikeSundays = seen.holidaysLikeSundays;
    const bool hasChanged = !(schema == colorSchema());
    m_appearance.setColorSchema(schema);
    const States before = std::exchange(m_states, states);
    if (hasChanged || states.parities != before.parities)
        showRows();
    m_states = before;
    reportStates(states);
    if (hasChanged)
        Q_EMIT schemaChanged(schema);
}
