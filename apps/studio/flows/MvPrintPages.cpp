// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintPages.h"

#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvFotoPass.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintRecorder.h"

#include <QPainter>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 imageBytes = qint64(192) << 20; // for the photos of all pages
constexpr int smallestSide = 256;                // pixels
constexpr int largestSide = 2048;
constexpr double pixelsPerUnit = 0.8; // some 200 dots per inch for the photos of entries

constexpr int mostShapes = 24; // pages whose shapes are painted within a moment

/// Gives the photos that were loaded beforehand, whatever size is asked for.
class LoadedFotos : public MvFotoSource
{
public:
    explicit LoadedFotos(const QHash<QString, QImage> &images)
        : m_images(images)
    {}

    QImage scaled(const QFileInfo &file, const QSize &) override { return m_images.value(file.filePath()); }

private:
    const QHash<QString, QImage> &m_images;
};

/// For so many images.
QSize boundsFor(qsizetype count)
{
    const double pixels = double(imageBytes) / 4.0 / double(std::max<qsizetype>(count, 1));
    const int side = int(std::sqrt(pixels)) / smallestSide * smallestSide;
    return QSize(1, 1) * std::clamp(side, smallestSide, largestSide);
}

} // namespace

MvPrintPages::MvPrintPages(const MvCalendarDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_recordings(document.pages().size())
    , m_fotos(new MvScreenFotos(MvFotoService::Urgency::Seen, this))
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Seen, this))
{
    connect(m_fotos, &MvScreenFotos::loaded, this, &MvPrintPages::takeFoto);
    connect(m_entryFotos, &MvFotoPages::arrived, this, &MvPrintPages::recordPage);
}

MvPrintPages::~MvPrintPages() = default;

void MvPrintPages::start()
{
    QSet<QString> paths;
    for (const MvCalendarPage &page : m_document.pages()) {
        for (const QString &path : page.fotoPaths())
            paths.insert(path);
    }
    m_pathCount = int(paths.size());
    m_fotoBounds = boundsFor(paths.size());
    for (const QString &path : std::as_const(paths))
        m_fotos->foto(path, m_fotoBounds);
    QTimer::singleShot(0, this, &MvPrintPages::recordNext);
}

MvPageSource MvPrintPages::pageSource() const
{
    MvPageSource source = m_document.pageSource();
    source.paint = [this](QPainter &painter, int number) { paintPage(painter, number); };
    return source;
}

/// A page per turn of the event loop.
void MvPrintPages::recordNext()
{
    if (m_next >= m_recordings.size())
        return;
    recordPage(m_next++);
    QTimer::singleShot(0, this, &MvPrintPages::recordNext);
}

void MvPrintPages::recordPage(int number)
{
    MvFotoPass fotos(*m_entryFotos, number);
    MvRenderingSources sources;
    sources.fotos = &fotos;
    const MvPaintRecording recording = m_document.pages().at(number).record(
        m_document.format(), m_document.context(), {}, MvRenderingRule(MvRenderingRule::Print), pixelsPerUnit, sources);
    if (!fotos.isComplete())
        return; // again when they have arrived
    m_recordings[number] = m_recordings.size() > mostShapes ? asPixels(recording) : recording;
    ++m_recordedCount;
    tellProgress();
}

/// What is painted faster, and is as sharp as the preview of many pages needs it.
MvPaintRecording MvPrintPages::asPixels(const MvPaintRecording &recording) const
{
    const QSizeF page = m_document.format().trimSize();
    QImage image(page.scaled(boundsFor(m_recordings.size()), Qt::KeepAspectRatio).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter into(&image);
    into.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    into.scale(image.width() / page.width(), image.height() / page.height());
    recording.replay(into);
    into.end();
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.drawImage(QRectF(QPointF(), page), image);
    painter.end();
    return recorder.recording();
}

void MvPrintPages::takeFoto(const QString &path)
{
    m_images.insert(path, m_fotos->foto(path, m_fotoBounds));
    tellProgress();
}

void MvPrintPages::tellProgress()
{
    const int done = m_recordedCount + int(m_images.size());
    const int total = int(m_recordings.size()) + m_pathCount;
    Q_EMIT progress(done, total);
    if (done == total)
        Q_EMIT ready();
}

void MvPrintPages::paintPage(QPainter &painter, int number) const
{
    const MvCalendarPage &page = m_document.pages().at(number);
    page.paintGround(painter, m_document.format());
    LoadedFotos fotos(m_images);
    page.paintFoto(painter, m_document.format(), fotos);
    if (m_recordings.at(number))
        m_recordings.at(number)->replay(painter);
}
