// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvLayoutPanel.h"

#include "panels/MvLayoutChooser.h"
#include "panels/MvPageEdits.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(124, 93); // logical pixels: two side by side in a dock

} // namespace

MvLayoutPanel::MvLayoutPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_layouts(new MvLayoutChooser(this, pictureSize))
{
    setObjectName(u"layoutPanel"_s);
    panelLayout()->addWidget(m_layouts, 1);
    connect(m_layouts, &MvLayoutChooser::layoutIdChanged, this, &MvLayoutPanel::onLayoutChosen);
}

/// The pictures are made again only when they would look different.
void MvLayoutPanel::showPage()
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
