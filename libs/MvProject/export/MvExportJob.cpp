// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvExportJob.h"

#include "MvCalendar/MvRenderingSources.h"
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
{}

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
    connect(m_entryFotos, &MvFotoPages::arrived, this, &MvExportJob::recordPage);
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
        feed->take(number).replay(painter);
    };
    source.missingFotos = [fotos] { return fotos->unread(); };
    m_thread.reset(QThread::create([this, source] { m_result = m_write(source, m_feed.get()); }));
    connect(m_thread.get(), &QThread::finished, this, &MvExportJob::finish);
    m_thread->start();
    QTimer::singleShot(0, this, [this] {
        Q_EMIT progress(0, int(m_pages.size()));
        recordPage(0);
    });
}

void MvExportJob::cancel()
{
    m_feed->cancel();
}

void MvExportJob::recordPage(int number)
{
    if (!m_thread || m_feed->isCancelled() || number >= m_pages.size())
        return;
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
            return; // called again when they have been decoded
        m_unreadOfDays += fotos.unread();
        m_feed->put(number, recording);
    }
    m_entryFotos->letGo(number); // they are in the recording
    QTimer::singleShot(0, this, [this, number] { recordPage(number + 1); });
}

void MvExportJob::finish()
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // its signal is still being delivered
    m_result.missingFotos += m_unreadOfDays;
    m_result.missingFotos.removeDuplicates();
    Q_EMIT finished(m_result);
}
