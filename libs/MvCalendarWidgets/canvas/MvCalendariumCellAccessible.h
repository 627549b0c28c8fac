// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QAccessibleObject>
#include <QStringList>

class MvGraphicsItemCalendariumCell;

/// A date of a calendarium as a screen reader sees it: a button named "Samstag, 5. Juni 2027" that tells what is on
/// the day and opens its menu. Child of the interface of its MvCalendariumView.
class MVCALENDARWIDGETS_EXPORT MvCalendariumCellAccessible : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    /// Makes cells, and views of the class MvCalendariumView, known to screen readers; once per process.
    static void install();

    explicit MvCalendariumCellAccessible(MvGraphicsItemCalendariumCell *cell);

    bool isValid() const override;
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text type) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &action) const override;

private:
    MvGraphicsItemCalendariumCell *cell() const;
};
