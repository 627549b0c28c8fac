// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvLayoutPanel.h"

#include "common/MvStudioMerge.h"
#include "panels/MvColorSchemaShelf.h"
#include "panels/MvLayoutChooser.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendariumColorSchemaEditor.h"
#include "MvCalendar/MvSession.h"

#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(124, 93); // logical pixels: two side by side in a dock

} // namespace

MvLayoutPanel::MvLayoutPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_layouts(new MvLayoutChooser(this, pictureSize))
    , m_schemata(new MvColorSchemaShelf(edits->session().undo(), this))
    , m_colors(new MvCalendariumColorSchemaEditor(this))
{
    setObjectName(u"layoutPanel"_s);
    addScopeSwitch();
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"layoutTabs"_s);
    tabs->setDocumentMode(true);
    tabs->addTab(m_layouts, tr("Layout"));
    tabs->addTab(createColorPage(), tr("Farben"));
    panelLayout()->addWidget(tabs, 1);
    m_colors->showAllRows();
    connect(m_layouts, &MvLayoutChooser::layoutIdChanged, this, &MvLayoutPanel::onLayoutChosen);
    connect(m_schemata, &MvColorSchemaShelf::colorSchemaChosen, this, &MvLayoutPanel::onSchemaChosen);
    connect(m_schemata, &MvColorSchemaShelf::schemataChanged, this, &MvLayoutPanel::showSchemata);
    connect(edits, &MvPageEdits::documentReplaced, m_schemata, &MvColorSchemaShelf::forgetOwnColors);
    connect(edits, &MvPageEdits::documentSaved, m_schemata, &MvColorSchemaShelf::forgetUnusedColors);
    connect(m_colors, &MvCalendariumColorSchemaEditor::schemaChanged, this, &MvLayoutPanel::onColorsChanged);
}

QWidget *MvLayoutPanel::createColorPage()
{
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget(area);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, column->spacing(), 0, 0);
    column->addWidget(m_schemata);
    column->addWidget(m_colors);
    column->addStretch(1);
    area->setWidget(content);
    return area;
}

void MvLayoutPanel::showPage()
{
    const MvCalendariumAppearance appearance = edits()->page().appearance();
    showLayout();
    showSchemata();
    m_colors->setAppearance(appearance);
}

void MvLayoutPanel::showSchemata()
{
    QList<MvCalendariumColorSchema> ofPages;
    for (const MvCalendarPage &page : edits()->document().pages()) {
        const MvCalendariumColorSchema &schema = page.appearance().colorSchema();
        if (ofPages.isEmpty() || !(ofPages.constLast() == schema))
            ofPages.append(schema);
    }
    m_schemata->showSchema(edits()->page().appearance().colorSchema(), ofPages);
}

/// The pictures are made again only when they would look different.
void MvLayoutPanel::showLayout()
{
    const MvCalendarPage page = edits()->page();
    MvCalendarDocument pictured;
    pictured.setFormat(edits()->document().format());
    pictured.setRange(edits()->document().range());
    pictured.setHolidayConfig(page.contentConfig().holidayConfig());
    MvCalendariumAppearance look = page.appearance();
    if (m_pictured.isValid()) // whatever the layout
        look.setLayoutSchema(m_pictured.appearance().layoutSchema());
    look.setColumnHeaders(QString());
    MvBorderConfig grid = look.gridConfig(); // on or off as the layouts suggest
    grid.setIsEnabled(true);
    look.setGridConfig(grid);
    pictured.setAppearance(look);
    if (!(pictured == m_pictured)) {
        m_pictured = pictured;
        m_layouts->setDocument(pictured);
    }
    m_layouts->setLayoutId(page.appearance().layoutSchema().ID());
}

void MvLayoutPanel::onLayoutChosen()
{
    if (!isShowing() && m_layouts->layoutId().isValid())
        edits()->setLayout(m_layouts->layoutId());
}

/// The grid stays on or off, as it was.
void MvLayoutPanel::onSchemaChosen(const MvCalendariumColorSchema &schema)
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
void MvLayoutPanel::onColorsChanged(const MvCalendariumColorSchema &schema)
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
