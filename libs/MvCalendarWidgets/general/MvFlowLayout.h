// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QLayout>
#include <QList>

/// Widgets side by side, as wide as they like to be, on as many lines as they need: no narrower than the widest of
/// them.
class MVGUIWIDGETS_EXPORT MvFlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit MvFlowLayout(QWidget *parent = nullptr);
    ~MvFlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    /// The caller owns what was taken; null for an index out of range.
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    /// Everything on one line.
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Gives the height; moves the widgets only when asked to.
    int arrange(const QRect &rect, bool isMoving) const;

    QList<QLayoutItem *> m_items;
};
