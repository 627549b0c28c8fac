// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvStudioPanels.h"

#include "panels/MvCalendariumPanel.h"
#include "panels/MvColorPanel.h"
#include "panels/MvColumnHeadersPanel.h"
#include "panels/MvContentPanel.h"
#include "panels/MvDayPanel.h"
#include "panels/MvFontPanel.h"
#include "panels/MvFotoPanel.h"
#include "panels/MvFramePanel.h"
#include "panels/MvLayoutPanel.h"
#include "panels/MvOwnEntriesSwitch.h"
#include "panels/MvPageEdits.h"
#include "panels/MvTemplatePanel.h"
#include "panels/MvTextPanel.h"
#include "panels/MvThemePanel.h"

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

QWidget *createEntriesPanel(MvStudioPanels *panels, MvProject *project, QWidget *parent)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(u"entriesPanel"_s);
    auto *list = new MvCalendarEventListWidget(panel, project->session());
    list->layout()->setContentsMargins({}); // the panel has some
    auto *column = new QVBoxLayout(panel);
    column->addWidget(new MvOwnEntriesSwitch(project, panel));
    column->addWidget(list);
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

MvStudioPanels::MvStudioPanels(MvProject *project, QWidget *parent, MvPageSelection *selection, MvFrameEdits *frames)
    : QObject(parent)
    , m_edits(new MvPageEdits(project, this))
{
    m_panels = {
        {u"themePanel"_s,
         tr("Gestaltung"),
         new MvThemePanel(m_edits, parent),
         {MvPageSelection::Kind::Calendar},
         false},
        {u"templatePanel"_s,
         tr("Vorlage der Seite"),
         new MvTemplatePanel(m_edits, parent),
         {MvPageSelection::Kind::Calendar, MvPageSelection::Kind::Foto, MvPageSelection::Kind::Text,
          MvPageSelection::Kind::Calendarium}},
        {u"contentPanel"_s, tr("Inhalt"), new MvContentPanel(m_edits, parent)},
        {u"layoutPanel"_s, tr("Layout"), new MvLayoutPanel(m_edits, parent)},
        {u"colorPanel"_s, tr("Farben"), new MvColorPanel(m_edits, parent)},
        {u"fontPanel"_s, tr("Schriften"), new MvFontPanel(m_edits, parent)},
        {u"columnHeadersPanel"_s, tr("Spalten"), new MvColumnHeadersPanel(m_edits, parent)},
        {u"entriesPanel"_s,
         tr("Einträge"),
         createEntriesPanel(this, project, parent),
         {MvPageSelection::Kind::Calendar},
         false},
    };
    if (!selection || !frames)
        return;
    auto *foto = new MvFotoPanel(m_edits, selection, parent);
    connect(foto, &MvFotoPanel::fileRequested, this, &MvStudioPanels::fileRequested);
    m_selectionPanels = {
        {u"photoPanel"_s, tr("Foto"), foto, {MvPageSelection::Kind::Foto}},
        {u"textPanel"_s, tr("Text"), new MvTextPanel(m_edits, selection, parent), {MvPageSelection::Kind::Text}, false},
        {u"calendariumPanel"_s,
         tr("Kalender"),
         new MvCalendariumPanel(m_edits, selection, parent),
         {MvPageSelection::Kind::Calendarium},
         false},
        {u"framePanel"_s,
         tr("Lage und Größe"),
         new MvFramePanel(m_edits, frames, selection, parent),
         {MvPageSelection::Kind::Foto, MvPageSelection::Kind::Text, MvPageSelection::Kind::Calendarium},
         false},
        {u"dayPanel"_s,
         tr("Einträge des Tages"),
         new MvDayPanel(m_edits, selection, project, parent),
         {MvPageSelection::Kind::Day},
         false},
    };
}

MvStudioPanels::~MvStudioPanels() = default;

void MvStudioPanels::setCurrentPage(int page)
{
    m_edits->setCurrentPage(page);
}
