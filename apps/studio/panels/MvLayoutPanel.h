// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvCalendarDocument.h"

class MvCalendariumColorSchemaEditor;
class MvColorSchemaShelf;
class MvLayoutChooser;

/// The layout, from pictures, and the colours: a schema from swatches, or single colours. Changed colours belong to the
/// pages and leave the schema they came from as it is.
class MvLayoutPanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvLayoutPanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    QWidget *createColorPage();
    void showLayout();
    void showSchemata();
    void onLayoutChosen();
    void onSchemaChosen(const MvCalendariumColorSchema &schema);
    void onColorsChanged(const MvCalendariumColorSchema &schema);

    MvLayoutChooser *m_layouts;
    MvColorSchemaShelf *m_schemata;
    MvCalendariumColorSchemaEditor *m_colors;
    MvCalendarDocument m_pictured; // what the pictures of the layouts were made for
};
