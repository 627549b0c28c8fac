// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvUnfittingWatch.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvFotoPass.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"

#include <QTimerEvent>

#include <algorithm>

namespace {

constexpr int delay = 600; // milliseconds without changes before looking

} // namespace

MvUnfittingWatch::MvUnfittingWatch(MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Background, this))
{
    connect(m_entryFotos, &MvFotoPages::arrived, this, &MvUnfittingWatch::invalidate);
    connect(project, &MvProject::pageChanged, this, &MvUnfittingWatch::invalidate);
    connect(project, &MvProject::pagesReset, this, &MvUnfittingWatch::reset);
    connect(project, &MvProject::documentReplaced, this, &MvUnfittingWatch::reset);
    connect(&project->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, [this] {
        for (int page = 0; page < m_pages.size(); ++page)
            invalidate(page);
    });
    reset();
}

QList<MvUnfittingWatch::Entry> MvUnfittingWatch::entries() const
{
    QList<Entry> entries;
    for (const Page &page : m_pages)
        entries += page.notes;
    return entries;
}

bool MvUnfittingWatch::isComplete() const
{
    return std::none_of(m_pages.begin(), m_pages.end(), [](const Page &page) { return page.isDue; });
}

void MvUnfittingWatch::invalidate(int page)
{
    if (page >= 0 && page < m_pages.size())
        m_pages[page].isDue = true;
    m_timer.start(delay, this);
}

void MvUnfittingWatch::reset()
{
    m_pages = QList<Page>(m_project->document().pages().size());
    m_hasNews = true;
    m_timer.start(delay, this);
}

void MvUnfittingWatch::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QObject::timerEvent(event);
    const auto due = std::find_if(m_pages.begin(), m_pages.end(), [](const Page &page) { return page.isDue; });
    if (due != m_pages.end()) {
        const int page = int(due - m_pages.begin());
        MvRenderingSources sources;
        MvFotoPass fotos(*m_entryFotos, page); // what is missing gives the texts too much room: see again
        sources.fotos = &fotos;
        QList<Entry> notes = MvPrintCheck::ofPage(m_project->document(), page, sources);
        notes.removeIf([](const Entry &note) { return note.kind == Entry::Kind::EmptyFrame; });
        due->isDue = false;
        m_hasNews = m_hasNews || notes != due->notes;
        due->notes = notes;
    }
    if (!isComplete()) {
        m_timer.start(0, this); // the next page, after whatever waits
        return;
    }
    m_timer.stop();
    if (m_hasNews) {
        m_hasNews = false;
        Q_EMIT changed();
    }
}
