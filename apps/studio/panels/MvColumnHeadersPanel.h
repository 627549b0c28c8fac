// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

class MvCalendariumColumnHeadersEditor;
class QLabel;
class QPushButton;
class QStackedWidget;

/// The columns of a planner: how many, and what stands above them, on a click the groups of the calendar's entries.
/// Says so where a layout has none.
class MvColumnHeadersPanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvColumnHeadersPanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    QWidget *createEmptyState();
    void onHeadersChanged(const QList<QString> &headers);
    void chooseLayoutWithColumns();

    QStackedWidget *m_stack;
    QWidget *m_editing;
    QWidget *m_emptyState;
    MvCalendariumColumnHeadersEditor *m_editor;
    QPushButton *m_fromGroups;
};
