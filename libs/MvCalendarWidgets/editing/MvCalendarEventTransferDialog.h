// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QDialog>
#include <QList>

class QPushButton;
class QTreeWidget;

/// Shows what one of two lists of entries has new or otherwise, and lets the person tick what the other one is to take
/// over: from the user's own list into a calendar, or from there back. New ones are ticked at first.
///
/// It changes nothing itself: what is ticked is chosen() when it was accepted. Deletes itself.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventTransferDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Direction { FromOwn, ToOwn };
    using Differences = QList<MvCalendarEventMerge::Difference>;

    /// At least one difference; `here` of each is where it may be taken from.
    MvCalendarEventTransferDialog(const Differences &differences, Direction direction, QWidget *parent);
    ~MvCalendarEventTransferDialog() override;

    Differences chosen() const;

private:
    void addRow(const MvCalendarEventMerge::Difference &difference, Direction direction);
    void tickAll(bool ticked);
    void updateButton();

    Differences m_differences;
    QTreeWidget *m_list;
    QPushButton *m_take;
};
