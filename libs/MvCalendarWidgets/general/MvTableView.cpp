// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvTableView.h"

#include <QAbstractItemDelegate>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace {

/// The rows' header of a list, which nobody sees: rows that are as high as their cells need do not measure a text in it
/// as well, which takes longer than all the rest where there are thousands.
class UnseenHeader : public QHeaderView
{
public:
    explicit UnseenHeader(QWidget *parent)
        : QHeaderView(Qt::Vertical, parent)
    {
        hide();
    }

protected:
    QSize sectionSizeFromContents(int) const override { return {0, 0}; }
};

constexpr int hoverAlpha = 20; // of 255
constexpr int cursorAlpha = 50;
constexpr int lineAlpha = 35;
constexpr int emptyTextAlpha = 170;
constexpr int emptyTextMargin = 24;

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

} // namespace

MvTableView::MvTableView(QWidget *parent)
    : QTableView(parent)
{}

MvTableView::~MvTableView() = default;

void MvTableView::updateToReasonableMinHeight()
{
    const int rows = reasonableRowCount * verticalHeader()->defaultSectionSize();
    setMinimumHeight(horizontalHeader()->sizeHint().height() + rows + 2 * frameWidth());
}

void MvTableView::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

void MvTableView::setListMode(const QList<int> &editorColumns)
{
    m_editorColumns = editorColumns;
    setMouseTracking(true);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalHeader(new UnseenHeader(this));
}

// ---- the row under the mouse

void MvTableView::setHoveredRow(int row)
{
    if (m_hoveredRow == row || m_editorColumns.isEmpty())
        return;
    setEditorsOpen(m_hoveredRow, false);
    m_hoveredRow = row;
    setEditorsOpen(m_hoveredRow, true);
    viewport()->update();
}

void MvTableView::updateHoveredRow()
{
    const QPoint pos = viewport()->mapFromGlobal(QCursor::pos());
    setHoveredRow(viewport()->underMouse() && viewport()->rect().contains(pos) ? rowAt(pos.y()) : -1);
}

void MvTableView::setEditorsOpen(int row, bool open)
{
    for (const int column : std::as_const(m_editorColumns)) {
        const QModelIndex index = model() ? model()->index(row, column) : QModelIndex();
        if (index.isValid() && open)
            openPersistentEditor(index);
        else if (index.isValid())
            closePersistentEditor(index);
    }
}

bool MvTableView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::MouseMove)
        setHoveredRow(rowAt(static_cast<QMouseEvent *>(event)->position().toPoint().y()));
    else if (event->type() == QEvent::Leave)
        setHoveredRow(-1);
    return QTableView::viewportEvent(event);
}

void MvTableView::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    updateHoveredRow();
}

void MvTableView::reset()
{
    m_hoveredRow = -1; // its editors go with the old rows
    QTableView::reset();
    if (m_editorColumns.isEmpty())
        return;
    QTimer::singleShot(0, this, [this] { // the selection model forgets the cursor after the view was reset
        restoreCursor();
        updateHoveredRow();
    });
}

// ---- painting

void MvTableView::paintEvent(QPaintEvent *event)
{
    if (!m_editorColumns.isEmpty())
        paintRows();
    QTableView::paintEvent(event);
    if (!m_emptyText.isEmpty() && model() && model()->rowCount(rootIndex()) == 0)
        paintEmptyText();
}

void MvTableView::paintRows()
{
    const int firstRow = rowAt(0);
    if (firstRow < 0)
        return;
    QPainter painter(viewport());
    const QColor line = withAlpha(palette().color(QPalette::Text), lineAlpha);
    for (int row = firstRow; row < model()->rowCount(rootIndex()); ++row) {
        const QRect rect(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
        if (rect.top() > viewport()->height())
            break;
        const bool hasCursor = hasFocus() && currentIndex().row() == row;
        if (hasCursor || row == m_hoveredRow)
            painter.fillRect(rect,
                             withAlpha(palette().color(QPalette::Highlight), hasCursor ? cursorAlpha : hoverAlpha));
        painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), line);
    }
}

void MvTableView::paintEmptyText()
{
    QPainter painter(viewport());
    painter.setPen(withAlpha(palette().color(QPalette::Text), emptyTextAlpha));
    const QRect rect = viewport()->rect().adjusted(emptyTextMargin, 0, -emptyTextMargin, 0);
    painter.drawText(rect, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

// ---- the cursor

void MvTableView::setCursor(int row, int column)
{
    const QModelIndex index = model() ? model()->index(row, column) : QModelIndex();
    if (!index.isValid())
        return;
    // unlike the view, the selection model does not ask for flags
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    scrollTo(index);
    viewport()->update();
}

void MvTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (!current.isValid())
        return;
    m_cursorRow = current.row();
    m_cursorColumn = current.column();
}

/// Moves the cursor back to its place, or to the last row.
void MvTableView::restoreCursor()
{
    if (m_cursorRow >= 0 && model() && !currentIndex().isValid())
        setCursor(std::min(m_cursorRow, model()->rowCount(rootIndex()) - 1), m_cursorColumn);
}

bool MvTableView::moveCursorByKey(int key)
{
    const int lastRow = model()->rowCount(rootIndex()) - 1;
    const int lastColumn = model()->columnCount(rootIndex()) - 1;
    const int row = currentIndex().row();
    const int column = std::max(0, currentIndex().column());
    const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(std::max(0, row))) - 1);
    const auto goTo = [this, lastRow, lastColumn, row](int toRow, int toColumn) {
        const int target = std::clamp(toRow, 0, lastRow);
        const int step = toRow < row ? -1 : 1;
        int shown = target;
        while (shown >= 0 && shown <= lastRow && isRowHidden(shown))
            shown += step;
        if (shown < 0 || shown > lastRow) // none that way: the other
            for (shown = target; shown >= 0 && shown <= lastRow && isRowHidden(shown);)
                shown -= step;
        setCursor(shown, std::clamp(toColumn, 0, lastColumn));
        return true;
    };
    if (lastRow < 0)
        return false;
    switch (key) {
    case Qt::Key_Up:
        return goTo(row - 1, column);
    case Qt::Key_Down:
        return goTo(row + 1, column);
    case Qt::Key_PageUp:
        return goTo(row - page, column);
    case Qt::Key_PageDown:
        return goTo(row + page, column);
    case Qt::Key_Home:
        return goTo(0, column);
    case Qt::Key_End:
        return goTo(lastRow, column);
    case Qt::Key_Left:
        return goTo(row, column - 1);
    case Qt::Key_Right:
        return goTo(row, column + 1);
    default:
        return false;
    }
}

bool MvTableView::isTakenByDelegate(QKeyEvent *event)
{
    QAbstractItemDelegate *delegate = itemDelegateForIndex(currentIndex());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(currentIndex());
    return delegate && delegate->editorEvent(event, model(), option, currentIndex());
}

void MvTableView::keyPressEvent(QKeyEvent *event)
{
    if (m_editorColumns.isEmpty() || !model()) {
        QTableView::keyPressEvent(event);
        return;
    }
    if (moveCursorByKey(event->key()))
        return;
    const QModelIndex index = currentIndex();
    if (!index.isValid()) {
        event->ignore();
        return;
    }
    if (isTakenByDelegate(event))
        return;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        Q_EMIT rowActivated(index);
        break;
    case Qt::Key_Delete:
        Q_EMIT rowRemovalRequested(index);
        break;
    default:
        event->ignore();
    }
}

void MvTableView::mousePressEvent(QMouseEvent *event)
{
    QTableView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!m_editorColumns.isEmpty() && index.isValid())
        setCursor(index.row(), index.column());
}

void MvTableView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!m_editorColumns.isEmpty() && index.isValid() && event->button() == Qt::LeftButton)
        Q_EMIT rowActivated(index);
    else
        QTableView::mouseDoubleClickEvent(event);
}

void MvTableView::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    if (m_editorColumns.isEmpty())
        return;
    const int row = std::max(0, currentIndex().row());
    if (event->reason() == Qt::BacktabFocusReason)
        setCursor(row, m_editorColumns.last());
    else if (event->reason() == Qt::TabFocusReason || !currentIndex().isValid())
        setCursor(row, m_editorColumns.first());
}

/// Moves the focus from one stop of the row to the next, then out of the table.
bool MvTableView::focusNextPrevChild(bool next)
{
    const QModelIndex index = currentIndex();
    if (!m_editorColumns.isEmpty() && index.isValid()) {
        const auto isAhead = [&index, next](int column) {
            return next ? column > index.column() : column < index.column();
        };
        QList<int> stops = m_editorColumns;
        if (!next)
            std::reverse(stops.begin(), stops.end());
        const auto stop = std::find_if(stops.cbegin(), stops.cend(), isAhead);
        if (stop != stops.cend()) {
            setCursor(index.row(), *stop);
            return true;
        }
    }
    return QTableView::focusNextPrevChild(next);
}

bool MvTableView::event(QEvent *event)
{
    const bool isByKey = event->type() == QEvent::ContextMenu && contextMenuPolicy() == Qt::CustomContextMenu &&
                         static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard;
    if (isByKey && currentIndex().isValid()) { // at the cursor, not at the mouse
        Q_EMIT customContextMenuRequested(visualRect(currentIndex()).center());
        return true;
    }
    return QTableView::event(event);
}
