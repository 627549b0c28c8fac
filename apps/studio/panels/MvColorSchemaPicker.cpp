// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvColorSchemaPicker.h"

#include "MvCalendar/MvCalendarCellColorInfo.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize swatchSize(78, 44); // logical pixels
constexpr int swatchColumns = 7;
constexpr int swatchRows = 3;
constexpr int gap = 10;
constexpr int textLines = 2;

MvCalendarCellType dayType(int column)
{
    return column == 6   ? CALENDAR_CELL_TYPE_SUNDAY
           : column == 5 ? CALENDAR_CELL_TYPE_SATURDAY
                         : CALENDAR_CELL_TYPE_WEEKDAY;
}

QColor colorOf(const MvCalendariumColorSchema &schema, MvCalendarCellColorRoleEnum role, const MvCalendarCellType &type,
               int row)
{
    return schema.cellColor(
        MvCalendarCellColorKey(role, type, row % 2 == 0 ? MvParityLogicEnum::odd : MvParityLogicEnum::even));
}

} // namespace

MvColorSchemaPicker::MvColorSchemaPicker(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(u"colorSchemaPicker"_s);
    setAccessibleName(tr("Farbschemata"));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setIconSize(swatchSize);
    setWordWrap(true);
    setUniformItemSizes(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // as high as its content: what stands around it scrolls
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QListWidget::currentRowChanged, this, &MvColorSchemaPicker::onRowChanged);
}

MvCalendariumColorSchemaID MvColorSchemaPicker::registeredId(const MvCalendariumColorSchema &schema)
{
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    const MvCalendariumColorSchemaID known = registry.idWhateverTheGrid(schema);
    if (known.isValid() || schema.gridConfig().isEnabled())
        return known;
    const MvCalendariumColorSchemaList all = registry.allSchemata();
    const auto same = std::find_if(all.cbegin(), all.cend(), [&schema](const MvCalendariumColorSchema &registered) {
        return registered.cellColors() == schema.cellColors();
    });
    return same != all.cend() ? registry.id(*same) : MvCalendariumColorSchemaID();
}

QList<MvColorSchemaPicker::Tile> MvColorSchemaPicker::tilesOf(const MvCalendariumColorSchemaID &marked,
                                                              const QList<MvCalendariumColorSchema> &ownColors)
{
    QList<Tile> tiles;
    for (const MvCalendariumColorSchema &own : ownColors) {
        const QString name = tr("Eigene Farben");
        tiles.append({own, {}, tiles.isEmpty() ? name : u"%1 %2"_s.arg(name).arg(tiles.size() + 1)});
    }
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    QList<MvCalendariumColorSchema> offered = registry.visibleSchemata();
    const MvCalendariumColorSchema inUse = registry.findSchema(marked);
    if (inUse.isValid() && !offered.contains(inUse))
        offered.append(inUse);
    std::stable_partition(offered.begin(), offered.end(), [](const auto &schema) { return schema.isUserSchema(); });
    for (const MvCalendariumColorSchema &schema : std::as_const(offered)) {
        const MvCalendariumColorSchemaID id = registry.id(schema);
        tiles.append({schema, id, registry.name(id)});
    }
    return tiles;
}

void MvColorSchemaPicker::showSchemata(const MvCalendariumColorSchema &marked,
                                       const QList<MvCalendariumColorSchema> &ownColors)
{
    const QScopedValueRollback<bool> marking(m_isMarking, true);
    const MvCalendariumColorSchemaID id = registeredId(marked);
    setTiles(tilesOf(id, ownColors));
    const auto found = std::find_if(m_tiles.cbegin(), m_tiles.cend(), [&](const Tile &tile) {
        return id.isValid() ? tile.id == id : tile.schema == marked;
    });
    setCurrentRow(found != m_tiles.cend() ? int(found - m_tiles.cbegin()) : -1);
    adaptHeight();
}

/// Only what changes: a click may be under way on what stays.
void MvColorSchemaPicker::setTiles(const QList<Tile> &tiles)
{
    for (int row = count() - 1; row >= 0; --row) {
        if (!tiles.contains(m_tiles.at(row))) {
            m_tiles.removeAt(row);
            delete takeItem(row);
        }
    }
    for (int row = 0; row < tiles.size(); ++row) {
        const Tile &tile = tiles.at(row);
        if (row < m_tiles.size() && m_tiles.at(row) == tile)
            continue;
        if (const qsizetype later = m_tiles.indexOf(tile); later >= 0) {
            m_tiles.removeAt(later);
            delete takeItem(int(later));
        }
        auto *item = new QListWidgetItem(swatch(tile.schema), tile.name);
        item->setToolTip(tile.name);
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
        m_tiles.insert(row, tile);
        insertItem(row, item);
    }
}

/// Three weeks of days on the schema's paper.
QIcon MvColorSchemaPicker::swatch(const MvCalendariumColorSchema &schema) const
{
    const double ratio = devicePixelRatioF();
    QPixmap pixmap(swatchSize * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF sheet = QRectF(QPointF(), QSizeF(swatchSize)).adjusted(1.5, 1.5, -1.5, -1.5);
    QPainterPath outline;
    outline.addRoundedRect(sheet, 3.0, 3.0);
    painter.fillPath(outline, Qt::white);
    const QColor paper = colorOf(schema, MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_EMPTY, 1);
    if (paper.isValid())
        painter.fillPath(outline, paper);
    painter.save();
    painter.setClipPath(outline);
    painter.setPen(Qt::NoPen);
    const QSizeF cell(sheet.width() / swatchColumns, sheet.height() / swatchRows);
    for (int row = 0; row < swatchRows; ++row) {
        for (int column = 0; column < swatchColumns; ++column) {
            const QRectF rect(sheet.left() + column * cell.width(), sheet.top() + row * cell.height(), cell.width(),
                              cell.height());
            const MvCalendarCellType type = dayType(column);
            const QColor ground = colorOf(schema, MvCalendarCellColorRoleEnum::bgcolor, type, row);
            if (ground.isValid())
                painter.fillRect(rect.adjusted(0.0, 0.0, 0.2, 0.2), ground);
            painter.setBrush(colorOf(schema, MvCalendarCellColorRoleEnum::textcolor, type, row));
            painter.drawEllipse(rect.center(), 1.9, 1.9);
        }
    }
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawPath(outline);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // colours stay when they are chosen
    return icon;
}

void MvColorSchemaPicker::onRowChanged(int row)
{
    if (!m_isMarking && row >= 0)
        Q_EMIT colorSchemaChosen(m_tiles.at(row).schema);
}

/// The right button asks for the menu of a swatch and chooses nothing.
void MvColorSchemaPicker::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        QListWidget::mousePressEvent(event);
}

void MvColorSchemaPicker::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    adaptHeight();
}

void MvColorSchemaPicker::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    for (int row = 0; row < count(); ++row)
        item(row)->setIcon(swatch(m_tiles.at(row).schema));
    adaptHeight();
}

QSize MvColorSchemaPicker::sizeHint() const
{
    return {3 * (swatchSize.width() + gap) + 2 * frameWidth(), height()};
}

bool MvColorSchemaPicker::hasOwnColors() const
{
    return !m_tiles.isEmpty() && !m_tiles.constFirst().id.isValid();
}

/// In the present width.
int MvColorSchemaPicker::rowsFor(int tiles) const
{
    const int columns = std::max(1, (viewport()->width() - 1) / (swatchSize.width() + gap));
    return (tiles + columns - 1) / columns;
}

/// All rows are seen, at any width, and share it evenly. There is always room for own colours: what stands below stays
/// where it is when they come.
void MvColorSchemaPicker::adaptHeight()
{
    const int width = viewport()->width() - 1;
    const int columns = std::max(1, width / (swatchSize.width() + gap));
    const QSize grid(width / columns, swatchSize.height() + textLines * fontMetrics().height() + gap);
    if (grid != gridSize())
        setGridSize(grid);
    const int rows = rowsFor(count() + (hasOwnColors() ? 0 : 1));
    const int needed = rows * gridSize().height() + 2 * frameWidth() + 2;
    if (height() != needed || minimumHeight() != needed)
        setFixedHeight(needed);
}

/// A row that is there for own colours alone says so.
void MvColorSchemaPicker::paintEvent(QPaintEvent *event)
{
    QListWidget::paintEvent(event);
    const int rows = rowsFor(count());
    if (hasOwnColors() || rowsFor(count() + 1) == rows)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const QRect room(gap, rows * gridSize().height(), viewport()->width() - 2 * gap, gridSize().height());
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Farben, die Sie unten ändern, kommen als „Eigene Farben“ dazu."));
}
