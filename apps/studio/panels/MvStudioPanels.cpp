// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvStudioPanels.h"

#include "panels/MvColumnHeadersPanel.h"
#include "panels/MvContentPanel.h"
#include "panels/MvFontPanel.h"
#include "panels/MvLayoutPanel.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendarEventListWidget.h"
#include "MvProject/MvProject.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// The calendar's page that shows the entry's day in one of its years; -1 for none.
int pageOf(const MvCalendarDocument &document, const MvCalendarEvent &event)
{
    const QDate day = event.dateTime().date();
    for (int page = 0; page < document.pages().size(); ++page) {
        const MvDateRange months = document.pages().at(page).printedMonths();
        for (QDate month = months.start(); month.isValid() && month <= months.end(); month = month.addMonths(1))
            if (month.month() == day.month())
                return page;
    }
    return -1;
}

/// Today, if the calendar has it, or else the first day of the current page.
QDate dateOfNewEntries(const MvPageEdits &edits)
{
    const QDate today = QDate::currentDate();
    return edits.document().range().contains(today) ? today : edits.page().contentConfig().moveToDayInMonth(1).date();
}

QWidget *createEntriesPanel(MvStudioPanels *panels, MvSession &session, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(u"entriesPanel"_s);
    auto *list = new MvCalendarEventListWidget(panel, session);
    list->layout()->setContentsMargins({}); // the panel has some
    (new QVBoxLayout(panel))->addWidget(list);
    const MvPageEdits *edits = panels->edits();
    const auto followPage = [list, edits] { list->setDateOfNewEntries(dateOfNewEntries(*edits)); };
    QObject::connect(edits, &MvPageEdits::pageRefreshed, list, followPage);
    followPage();
    QObject::connect(list, &MvCalendarEventListWidget::eventClicked, panels, [panels](const MvCalendarEvent &event) {
        if (const int page = pageOf(panels->edits()->document(), event); page >= 0)
            Q_EMIT panels->pageRequested(page);
    });
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
        {u"entriesPanel"_s, tr("Einträge"), u"ico_studio_entries"_s,
         createEntriesPanel(this, project->session(), parent)},
    };
}

MvStudioPanels::~MvStudioPanels() = default;

void MvStudioPanels::setCurrentPage(int page)
{
    m_edits->setCurrentPage(page);
}
