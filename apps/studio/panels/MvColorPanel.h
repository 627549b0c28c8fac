// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

class MvCalendariumColorSchema;
class MvCalendariumColorSchemaEditor;
class MvColorSchemaShelf;

/// The colours: a schema from swatches, or single ones. Changed colours belong to the pages and leave the schema they
/// came from as it is.
class MvColorPanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvColorPanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    void showSchemata();
    void onSchemaChosen(const MvCalendariumColorSchema &schema);
    void onColorsChanged(const MvCalendariumColorSchema &schema);

    MvColorSchemaShelf *m_schemata;
    MvCalendariumColorSchemaEditor *m_colors;
};
