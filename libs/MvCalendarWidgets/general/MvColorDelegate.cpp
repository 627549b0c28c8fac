// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvColorDelegate.h"

#include "MvGUIWidgets/MvColorPalettePopup.h"
#include "MvGUIWidgets/MvColorSwatch.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

bool isOpeningKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2;
}

/// A triangle with an exclamation mark, at the end of the cell.
void paintWarning(QPainter &painter, const QRect &swatch, const QColor &color, Qt::LayoutDirection direction)
{
    const double side = swatch.height() * 0.6;
    const double x = direction == Qt::RightToLeft ? swatch.left() + side / 2 : swatch.right() - 1.5 * side;
    const QRectF box(x, swatch.center().y() - side / 2, side, side);
    const QColor ink = MvColorSwatch::inkOn(color);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, qMax(1.0, side / 12), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolygon(QPolygonF({{box.center().x(), box.top()}, box.bottomRight(), box.bottomLeft()}));
    painter.drawLine(QPointF(box.center().x(), box.top() + side * 0.38),
                     QPointF(box.center().x(), box.top() + side * 0.65));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(box.center().x(), box.top() + side * 0.82), side / 14, side / 14);
    painter.restore();
}

} // namespace

MvColorDelegate::MvColorDelegate(QAbstractItemView *view, bool alphaAllowed)
    : QStyledItemDelegate(view)
    , m_view(view)
    , m_alphaAllowed(alphaAllowed)
{
    view->installEventFilter(this);
}

MvColorDelegate::~MvColorDelegate() = default;

void MvColorDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const bool hasFocus = cell.state.testFlag(QStyle::State_HasFocus);
    cell.text.clear();
    cell.state.setFlag(QStyle::State_HasFocus, false);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const auto color = index.data(Qt::EditRole).value<QColor>();
    const int margin = qMax(2, cell.rect.height() / 10);
    const QRect swatch = cell.rect.adjusted(margin, margin, -margin, -margin);
    MvColorSwatch::paint(*painter, swatch, color, cell.palette);
    if (index.data(WarningRole).toBool())
        paintWarning(*painter, swatch, color, cell.direction);
    if (hasFocus) {
        painter->save();
        painter->setPen(QPen(cell.palette.color(QPalette::Highlight), margin));
        const int half = margin / 2;
        painter->drawRect(cell.rect.adjusted(half, half, -margin + half, -margin + half));
        painter->restore();
    }
}

QSize MvColorDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int height = option.fontMetrics.height();
    return {height * 5, qRound(height * 1.7)};
}

QWidget *MvColorDelegate::createEditor(QWidget *, const QStyleOptionViewItem &, const QModelIndex &) const
{
    return nullptr;
}

bool MvColorDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                                  const QModelIndex &index)
{
    if (event->type() != QEvent::MouseButtonRelease)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto *mouse = static_cast<const QMouseEvent *>(event);
    if (mouse->button() != Qt::LeftButton || !option.rect.contains(mouse->position().toPoint()))
        return false;
    openPalette(index);
    return true;
}

bool MvColorDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_view)
        return QStyledItemDelegate::eventFilter(watched, event);
    if (event->type() != QEvent::KeyPress || !isOpeningKey(static_cast<QKeyEvent *>(event)->key()))
        return false;
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid() || m_view->itemDelegateForIndex(current) != this)
        return false;
    openPalette(current);
    return true;
}

void MvColorDelegate::openPalette(const QModelIndex &index)
{
    if (!index.flags().testFlags(Qt::ItemIsEnabled | Qt::ItemIsEditable))
        return;
    const auto color = index.data(Qt::EditRole).value<QColor>();
    auto *palette = new MvColorPalettePopup(m_view->viewport(), color, usedColors(), m_alphaAllowed);
    const QPersistentModelIndex cell(index); // the rows may have changed when a colour is chosen
    connect(palette, &MvColorPalettePopup::colorChosen, this, [this, cell](const QColor &chosen) {
        if (cell.isValid() && chosen != cell.data(Qt::EditRole).value<QColor>())
            m_view->model()->setData(cell, chosen, Qt::EditRole);
    });
    palette->openAt(m_view->visualRect(index));
}

QList<QColor> MvColorDelegate::usedColors() const
{
    QList<QColor> colors;
    const QAbstractItemModel &model = *m_view->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QVariant value = model.index(row, column).data(Qt::EditRole);
            if (value.metaType() == QMetaType::fromType<QColor>())
                colors.append(value.value<QColor>());
        }
    }
    return colors;
}
