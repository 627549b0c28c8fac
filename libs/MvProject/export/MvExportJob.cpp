// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvExportJob.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvCore/MvBackground.h"
#include "MvCore/MvMath.h"
#include "MvFoto/MvFotoPass.h"
#include "MvProject/MvExportFeed.h"
#include "MvProject/MvExportFotos.h"
#include "MvProject/MvPageSource.h"

#include <QPainter>
#include <QThread>
#include <QTimer>

MvExportJob::MvExportJob(const MvCalendarDocument &document, const MvExportTarget &target, int dpi, QObject *parent)
    : MvExportJob(
          document,
          [target, dpi](const MvPageSource &pages, MvExportObserver *observer) {
              return target.write(pages, dpi, observer);
          },
          target.imageResolution(dpi), parent)
{
    m_isForReading = target.isForReading();
}

MvExportJob::MvExportJob(const MvCalendarDocument &document, const Writer &write, int dpi, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_write(write)
    , m_dpi(dpi)
    , m_feed(std::make_shared<MvExportFeed>([this](int done, int total) {
        QMetaObject::invokeMethod(
            this, [this, done, total] { Q_EMIT progress(done, total); }, Qt::QueuedConnection);
    }))
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Background, this))
{
    connect(m_entryFotos, &MvFotoPages::arrived, this, &MvExportJob::makePage);
    for (int page = 0; page < m_document.pages().size(); ++page)
        m_pages.append(page);
}

MvExportJob::~MvExportJob()
{
    m_feed->cancel();
    if (m_thread)
        m_thread->wait();
}

void MvExportJob::setPages(const QList<int> &pages)
{
    m_pages.clear();
    for (const int page : pages)
        if (page >= 0 && page < m_document.pages().size())
            m_pages.append(page);
}

void MvExportJob::start()
{
    if (std::exchange(m_isStarted, true))
        return;
    m_isRunning = true;
    m_work = [this, pages = source()] { m_result = m_write(pages, m_feed.get()); };
    startThread();
    QTimer::singleShot(0, this, [this] {
        Q_EMIT progress(0, int(m_pages.size()));
        makePage(0);
    });
}

/// The pages as the thread sees them: it paints ground and photos itself and waits for what is made of the rest.
MvPageSource MvExportJob::source()
{
    MvPageSource source = m_document.pageSource().part(m_pages);
    QList<MvCalendarPage> pages;
    for (const int page : std::as_const(m_pages))
        pages.append(m_document.pages()[page]);
    const auto fotos = std::make_shared<MvExportFotos>(pages, m_document.format());
    source.paint = [feed = m_feed, format = m_document.format(), pages, fotos](QPainter &painter, int number) {
        fotos->begin(painter, number);
        pages[number].paintGround(painter, format);
        pages[number].paintFoto(painter, format, *fotos);
        fotos->end(number);
        feed->take(number).recording.replay(painter);
    };
    source.content = [feed = m_feed](int number) { return feed->take(number).content; };
    source.missingFotos = [fotos] { return fotos->unread(); };
    return source;
}

void MvExportJob::startThread()
{
    m_thread.reset(QThread::create(m_work));
    connect(m_thread.get(), &QThread::finished, this, &MvExportJob::finish);
    if (MvBackground::hasThread())
        m_thread->start();
    if (!m_thread->isRunning() && !m_thread->isFinished()) // it has not begun and never will
        m_thread.reset();
}

void MvExportJob::cancel()
{
    m_feed->cancel();
}

void MvExportJob::makePage(int number)
{
    const bool isLast = m_feed->isCancelled() || number >= m_pages.size();
    if (m_isRunning && isLast && !m_thread)
        writeHere();
    if (!m_isRunning || isLast)
        return;
    if (m_isForReading)
        m_feed->put(number, {{}, m_document.pageSource().content(m_pages[number])});
    else if (!recordPage(number))
        return; // called again when they have been decoded
    QTimer::singleShot(0, this, [this, number] { makePage(number + 1); });
}

bool MvExportJob::recordPage(int number)
{
    const double pixelsPerUnit = m_dpi / MvMath::tenthMillimetresPerInch;
    const MvCalendarPage &page = m_document.pages()[m_pages[number]];
    {
        MvFotoPass fotos(*m_entryFotos, number);
        MvRenderingSources sources;
        sources.fotos = &fotos;
        MvPageFindings &found = m_findings[m_pages[number]];
        const MvPaintRecording recording =
            page.record(m_document.format(), m_document.context(), {}, MvRenderingRule(MvRenderingRule::Print),
                        pixelsPerUnit, sources, &found);
        if (!fotos.isComplete())
            return false;
        m_unreadOfDays += fotos.unread();
        m_feed->put(number, {recording, {}});
    }
    m_entryFotos->letGo(number); // they are in the recording
    return true;
}

/// In place of the thread that is missing; all pages are made by now, unless somebody has cancelled.
void MvExportJob::writeHere()
{
    if (const auto work = std::exchange(m_work, nullptr)) {
        work();
        QMetaObject::invokeMethod(this, &MvExportJob::finish, Qt::QueuedConnection); // after the progress that was told
    }
}

void MvExportJob::finish()
{
    if (m_thread) {
        m_thread->wait();
        m_thread.release()->deleteLater(); // its signal is still being delivered
    }
    m_isRunning = false;
    m_result.missingFotos += m_unreadOfDays;
    m_result.missingFotos.removeDuplicates();
    Q_EMIT finished(m_result);
}
