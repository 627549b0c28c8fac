// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvCalendarDocument.h"

class MvLayoutChooser;

/// The layout of the calendarium, from pictures.
class MvLayoutPanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvLayoutPanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    void onLayoutChosen();

    MvLayoutChooser *m_layouts;
    MvCalendarDocument m_pictured; // what the pictures of the layouts were made for
};
