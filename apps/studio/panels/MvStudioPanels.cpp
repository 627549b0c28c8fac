// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvStudioPanels.h"

#include "panels/MvCalendariumPanel.h"
#include "panels/MvColorPanel.h"
#include "panels/MvColumnHeadersPanel.h"
#include "panels/MvContentPanel.h"
#include "panels/MvDayPanel.h"
#include "panels/MvEntriesPanel.h"
#include "panels/MvFontPanel.h"
#include "panels/MvFotoPanel.h"
#include "panels/MvFramePanel.h"
#include "panels/MvLayoutPanel.h"
#include "panels/MvPageEdits.h"
#include "panels/MvTemplatePanel.h"
#include "panels/MvTextPanel.h"
#include "panels/MvThemePanel.h"

using namespace Qt::StringLiterals;

MvStudioPanels::MvStudioPanels(MvProject *project, QWidget *parent, MvPageSelection *selection, MvFrameEdits *frames)
    : QObject(parent)
    , m_edits(new MvPageEdits(project, this))
{
    auto *entries = new MvEntriesPanel(m_edits, project, parent);
    connect(entries, &MvEntriesPanel::dayRequested, this, &MvStudioPanels::dayRequested);
    connect(entries, &MvEntriesPanel::groupsRequested, this, &MvStudioPanels::groupsRequested);
    connect(entries, &MvEntriesPanel::message, this, &MvStudioPanels::message);
    auto *content = new MvContentPanel(m_edits, parent);
    connect(content, &MvContentPanel::groupsRequested, this, &MvStudioPanels::groupsRequested);
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
        {u"contentPanel"_s, tr("Inhalt"), content},
        {u"layoutPanel"_s, tr("Layout"), new MvLayoutPanel(m_edits, parent)},
        {u"colorPanel"_s, tr("Farben"), new MvColorPanel(m_edits, parent)},
        {u"fontPanel"_s, tr("Schriften"), new MvFontPanel(m_edits, parent)},
        {u"columnHeadersPanel"_s, tr("Spalten"), new MvColumnHeadersPanel(m_edits, parent)},
        {u"entriesPanel"_s, tr("Einträge"), entries, {MvPageSelection::Kind::Calendar}, false},
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
