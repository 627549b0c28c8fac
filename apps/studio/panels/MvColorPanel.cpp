// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvColorPanel.h"

#include "common/MvStudioMerge.h"
#include "panels/MvColorSchemaShelf.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendariumColorSchemaEditor.h"
#include "MvCalendar/MvSession.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvColorPanel::MvColorPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_schemata(new MvColorSchemaShelf(edits->session().undo(), this))
    , m_colors(new MvCalendariumColorSchemaEditor(this))
{
    setObjectName(u"colorPanel"_s);
    QVBoxLayout *column = addScrollingColumn();
    column->addWidget(m_schemata);
    column->addWidget(m_colors);
    column->addStretch(1);
    m_colors->showAllRows();
    connect(m_schemata, &MvColorSchemaShelf::colorSchemaChosen, this, &MvColorPanel::onSchemaChosen);
    connect(m_schemata, &MvColorSchemaShelf::schemataChanged, this, &MvColorPanel::showSchemata);
    connect(edits, &MvPageEdits::documentReplaced, m_schemata, &MvColorSchemaShelf::forgetOwnColors);
    connect(edits, &MvPageEdits::documentSaved, m_schemata, &MvColorSchemaShelf::forgetUnusedColors);
    connect(m_colors, &MvCalendariumColorSchemaEditor::schemaChanged, this, &MvColorPanel::onColorsChanged);
}

void MvColorPanel::showPage()
{
    showSchemata();
    m_colors->setAppearance(edits()->page().appearance());
}

void MvColorPanel::showSchemata()
{
    QList<MvCalendariumColorSchema> ofPages;
    for (const MvCalendarPage &page : edits()->document().pages()) {
        const MvCalendariumColorSchema &schema = page.appearance().colorSchema();
        if (ofPages.isEmpty() || !(ofPages.constLast() == schema))
            ofPages.append(schema);
    }
    m_schemata->showSchema(edits()->page().appearance().colorSchema(), ofPages);
}

/// The grid stays on or off, as it was.
void MvColorPanel::onSchemaChosen(const MvCalendariumColorSchema &schema)
{
    if (isShowing())
        return;
    const auto apply = [&schema](MvCalendarPage &page) {
        MvCalendariumAppearance appearance = page.appearance();
        const bool hasGrid = appearance.gridConfig().isEnabled();
        appearance.setColorSchema(schema);
        MvBorderConfig grid = appearance.gridConfig();
        grid.setIsEnabled(hasGrid);
        appearance.setGridConfig(grid);
        page.setAppearance(appearance);
    };
    edits()->edit(apply, tr("Farbschema ändern"));
}

/// A schema that is not registered any more belongs to the pages, and is written into their file.
void MvColorPanel::onColorsChanged(const MvCalendariumColorSchema &schema)
{
    if (isShowing())
        return;
    const auto apply = [&schema](MvCalendarPage &page) {
        MvCalendariumAppearance appearance = page.appearance();
        appearance.setColorSchema(schema);
        page.setAppearance(appearance);
    };
    edits()->edit(apply, tr("Farben ändern"), MvStudioMerge::Colors);
}
