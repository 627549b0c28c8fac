// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QList>
#include <QString>
#include <QTableView>

/// A table for panels: never less than a few of its rows in sight, and a text where there are none.
///
/// As a list it shows rows whose model gives them no flags, so that nothing is selected or edited in place: the row
/// under the mouse shows the editors of some columns, a cursor goes over the cells by keyboard, and what is to be done
/// with a row is signalled. Keys reach the delegate of the cell first (QAbstractItemDelegate::editorEvent()).
class MVGUIWIDGETS_EXPORT MvTableView : public QTableView
{
    Q_OBJECT

public:
    /// Rows that updateToReasonableMinHeight() keeps in sight, even when there are fewer.
    static constexpr int reasonableRowCount = 4;

    explicit MvTableView(QWidget *parent = nullptr);
    ~MvTableView() override;

    /// Makes the view high enough for its header and a few rows of the default height.
    void updateToReasonableMinHeight();

    /// Shown instead of rows.
    void setEmptyText(const QString &text);

    /// Makes the table a list. The columns have editors that appear under the mouse; Tab stops at them within a row.
    void setListMode(const QList<int> &editorColumns);
    /// -1 when the mouse is over none.
    int hoveredRow() const { return m_hoveredRow; }

    void reset() override;

Q_SIGNALS:
    // of a list
    /// By Enter, Space, F2 or a double click.
    void rowActivated(const QModelIndex &index);
    /// By Delete.
    void rowRemovalRequested(const QModelIndex &index);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void setHoveredRow(int row);
    void updateHoveredRow();
    void setEditorsOpen(int row, bool open);
    void paintRows();
    void paintEmptyText();

    void setCursor(int row, int column);
    void restoreCursor();
    bool moveCursorByKey(int key);
    bool isTakenByDelegate(QKeyEvent *event);

    QString m_emptyText;
    QList<int> m_editorColumns; // empty: not a list
    int m_hoveredRow = -1;
    int m_cursorRow = -1;
    int m_cursorColumn = 0;
};
