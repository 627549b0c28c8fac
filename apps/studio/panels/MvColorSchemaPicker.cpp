#include "panels/MvColorSchemaPicker.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int idRole = Qt::UserRole;
constexpr QSize swatchSize(78, 44); // logical pixels
constexpr int swatchColumns = 7;
constexpr int swatchRows = 3;
constexpr int gap = 10;
constexpr int textLines = 2;

bool haveSameColors(const MvCalendariumColorSchema &a, const MvCalendariumColorSchema &b)
{
    MvCalendariumColorSchema sameGrid = a;
    sameGrid.setGridConfig(b.gridConfig());
    return sameGrid == b;
}

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
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    for (const MvCalendariumColorSchema &schema : registry.visibleSchemata()) {
        const MvCalendariumColorSchemaID id = registry.id(schema);
        addSchema(count(), schema, registry.name(id), id.toString());
    }
    connect(this, &QListWidget::currentRowChanged, this, &MvColorSchemaPicker::onRowChanged);
}

void MvColorSchemaPicker::addSchema(int row, const MvCalendariumColorSchema &schema, const QString &name,
                                    const QString &objectId)
{
    auto *item = new QListWidgetItem(swatch(schema), name);
    item->setData(idRole, objectId);
    item->setToolTip(name);
    item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_schemata.insert(row, schema);
    insertItem(row, item);
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

void MvColorSchemaPicker::setColorSchema(const MvCalendariumColorSchema &schema)
{
    const QScopedValueRollback<bool> marking(m_isMarking, true);
    if (m_hasOwn) {
        m_schemata.removeFirst();
        delete takeItem(0);
        m_hasOwn = false;
    }
    const auto same = std::find_if(m_schemata.begin(), m_schemata.end(),
                                   [&schema](const auto &known) { return haveSameColors(known, schema); });
    int row = same != m_schemata.end() ? int(same - m_schemata.begin()) : -1;
    if (row < 0 && schema.isValid()) {
        addSchema(0, schema, tr("Eigene Farben"), QString());
        m_hasOwn = true;
        row = 0;
    }
    setCurrentRow(row);
    adaptHeight();
}

void MvColorSchemaPicker::onRowChanged(int row)
{
    if (!m_isMarking && row >= 0)
        Q_EMIT colorSchemaChosen(m_schemata.at(row));
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
        item(row)->setIcon(swatch(m_schemata.at(row)));
    adaptHeight();
}

QSize MvColorSchemaPicker::sizeHint() const
{
    return {3 * (swatchSize.width() + gap) + 2 * frameWidth(), height()};
}

/// All rows are seen, at any width, and share it evenly.
void MvColorSchemaPicker::adaptHeight()
{
    const int width = viewport()->width() - 1;
    const int columns = std::max(1, width / (swatchSize.width() + gap));
    const QSize grid(width / columns, swatchSize.height() + textLines * fontMetrics().height() + gap);
    if (grid != gridSize())
        setGridSize(grid);
    const int rows = (count() + columns - 1) / columns;
    const int needed = rows * gridSize().height() + 2 * frameWidth() + 2;
    if (height() != needed || minimumHeight() != needed)
        setFixedHeight(needed);
}
