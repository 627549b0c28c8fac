// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvCalendariumElement.h"

#include <functional>

class MvPageSelection;
class QCheckBox;
class QComboBox;

/// The chosen calendarium as a part of its page: which month it shows, and in which layout.
class MvCalendariumPanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// The selection is not owned.
    MvCalendariumPanel(MvPageEdits *edits, MvPageSelection *selection, QWidget *parent);

protected:
    void showPage() override;

private:
    using Edit = std::function<void(MvCalendariumElement &)>;

    void edit(const Edit &edit, const QString &text);

    MvPageSelection *m_selection;
    QComboBox *m_month;
    QComboBox *m_layout;
    QCheckBox *m_line;
    QCheckBox *m_onFoto;
};
