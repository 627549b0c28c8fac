// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintWatch.h"

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

MvPrintWatch::MvPrintWatch(MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Background, this))
{
    connect(m_entryFotos, &MvFotoPages::arrived, this, &MvPrintWatch::invalidate);
    connect(project, &MvProject::pageChanged, this, &MvPrintWatch::invalidate);
    connect(project, &MvProject::pagesReset, this, &MvPrintWatch::reset);
    connect(project, &MvProject::documentReplaced, this, &MvPrintWatch::reset);
    connect(&project->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, [this] {
        for (int page = 0; page < m_pages.size(); ++page)
            invalidate(page);
    });
    reset();
}

QList<MvPrintFinding> MvPrintWatch::findings() const
{
    QList<MvPrintFinding> all;
    for (const Page &page : m_pages)
        all += page.findings;
    return all;
}

QList<MvPrintFinding> MvPrintWatch::findings(const QList<int> &pages) const
{
    QList<MvPrintFinding> all = findings();
    all.removeIf([&pages](const MvPrintFinding &finding) { return !pages.contains(finding.page); });
    return all;
}

QList<MvPrintFinding> MvPrintWatch::notes() const
{
    QList<MvPrintFinding> all = findings();
    all.removeIf([](const MvPrintFinding &finding) { return finding.kind == MvPrintFinding::Kind::EmptyFrame; });
    return all;
}

bool MvPrintWatch::isComplete() const
{
    return std::none_of(m_pages.begin(), m_pages.end(), [](const Page &page) { return page.isDue; });
}

void MvPrintWatch::invalidate(int page)
{
    if (page >= 0 && page < m_pages.size())
        m_pages[page].isDue = true;
    m_timer.start(delay, this);
}

void MvPrintWatch::reset()
{
    m_pages = QList<Page>(m_project->document().pages().size());
    m_hasNews = true;
    m_timer.start(delay, this);
}

void MvPrintWatch::hurry()
{
    if (!isComplete())
        m_timer.start(0, this);
}

void MvPrintWatch::lookAt(int page)
{
    MvRenderingSources sources;
    MvFotoPass fotos(*m_entryFotos, page); // what is missing gives the texts too much room: see again
    sources.fotos = &fotos;
    const QList<MvPrintFinding> findings = MvPrintCheck::ofPage(m_project->document(), page, sources);
    m_pages[page].isDue = false;
    m_hasNews = m_hasNews || findings != m_pages[page].findings;
    m_pages[page].findings = findings;
}

void MvPrintWatch::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QObject::timerEvent(event);
    const auto due = std::find_if(m_pages.begin(), m_pages.end(), [](const Page &page) { return page.isDue; });
    if (due != m_pages.end())
        lookAt(int(due - m_pages.begin()));
    if (!isComplete()) {
        m_timer.start(0, this); // the next page, after whatever waits
        return;
    }
    m_timer.stop();
    if (m_hasNews) {
        m_hasNews = false;
        Q_EMIT changed();
    }
    Q_EMIT completed();
}
