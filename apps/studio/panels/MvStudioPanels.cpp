#include "panels/MvStudioPanels.h"

#include "panels/MvColumnHeadersPanel.h"
#include "panels/MvContentPanel.h"
#include "panels/MvFontPanel.h"
#include "panels/MvLayoutPanel.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendarEventListWidget.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QWidget *createEntriesPanel(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(u"entriesPanel"_s);
    auto *list = new MvCalendarEventListWidget(panel);
    list->layout()->setContentsMargins({}); // the panel has some
    (new QVBoxLayout(panel))->addWidget(list);
    return panel;
}

} // namespace

MvStudioPanels::MvStudioPanels(MvProject *project, QWidget *parent)
    : QObject(parent)
    , m_edits(new MvPageEdits(project, this))
{
    m_panels = {
        {u"contentPanel"_s, tr("Inhalt"), u"ico_studio_content"_s, new MvContentPanel(m_edits, parent)},
        {u"layoutPanel"_s, tr("Gestaltung"), u"ico_studio_colors"_s, new MvLayoutPanel(m_edits, parent)},
        {u"fontPanel"_s, tr("Schriften"), u"ico_studio_fonts"_s, new MvFontPanel(m_edits, parent)},
        {u"columnHeadersPanel"_s, tr("Spalten"), u"ico_studio_column_headers"_s,
         new MvColumnHeadersPanel(m_edits, parent)},
        {u"entriesPanel"_s, tr("Einträge"), u"ico_studio_entries"_s, createEntriesPanel(parent)},
    };
}

MvStudioPanels::~MvStudioPanels() = default;

void MvStudioPanels::setCurrentPage(int page)
{
    m_edits->setCurrentPage(page);
}
