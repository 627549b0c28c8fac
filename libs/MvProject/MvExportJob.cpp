#include "MvProject/MvExportJob.h"

#include "MvCore/MvMath.h"
#include "MvProject/MvExportFeed.h"
#include "MvProject/MvPageSource.h"

#include <QPainter>
#include <QThread>
#include <QTimer>

MvExportJob::MvExportJob(const MvCalendarDocument &document, const MvExportTarget &target, int dpi, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_target(target)
    , m_dpi(dpi)
    , m_feed(std::make_shared<MvExportFeed>([this](int done, int total) {
        QMetaObject::invokeMethod(
            this, [this, done, total] { Q_EMIT progress(done, total); }, Qt::QueuedConnection);
    }))
{}

MvExportJob::~MvExportJob()
{
    m_feed->cancel();
    if (m_thread)
        m_thread->wait();
}

void MvExportJob::start()
{
    if (std::exchange(m_isStarted, true))
        return;
    MvPageSource source = m_document.pageSource();
    source.paint = [feed = m_feed, document = m_document](QPainter &painter, int page) {
        const MvCalendarPage &content = document.pages()[page];
        content.paintGround(painter, document.format());
        content.paintPhoto(painter, document.format());
        feed->take(page).replay(painter);
    };
    m_thread.reset(QThread::create([this, source] { m_result = m_target.write(source, m_dpi, m_feed.get()); }));
    connect(m_thread.get(), &QThread::finished, this, &MvExportJob::finish);
    m_thread->start();
    QTimer::singleShot(0, this, [this] {
        Q_EMIT progress(0, int(m_document.pages().size()));
        recordPage(0);
    });
}

void MvExportJob::cancel()
{
    m_feed->cancel();
}

void MvExportJob::recordPage(int page)
{
    if (!m_thread || m_feed->isCancelled() || page >= m_document.pages().size())
        return;
    const double pixelsPerUnit = m_target.imageResolution(m_dpi) / MvMath::tenthMillimetresPerInch;
    m_feed->put(page, m_document.pages()[page].record(m_document.format(), m_document.range(), {},
                                                      MvRenderingRule(MvRenderingRule::Print), pixelsPerUnit));
    QTimer::singleShot(0, this, [this, page] { recordPage(page + 1); });
}

void MvExportJob::finish()
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // it is still emitting
    Q_EMIT finished(m_result);
}
