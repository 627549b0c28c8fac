// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvCalendar/MvCalendariumFontSettings.h"

class MvCalendariumFontEditor;
class QPushButton;

/// The font of the calendaria and its sizes.
class MvFontPanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvFontPanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    void onFontChanged();
    void resetFont();

    MvCalendariumFontEditor *m_editor;
    QPushButton *m_reset;
    MvCalendariumFontSettings m_shown; // as the editor gives it back without an edit
};
