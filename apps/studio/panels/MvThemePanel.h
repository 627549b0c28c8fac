// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

class MvThemeChooser;

/// The theme of the calendar, from pictures: one click changes layout, colours, fonts and templates of all pages.
class MvThemePanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvThemePanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    void onThemeChosen();

    MvThemeChooser *m_themes;
};
