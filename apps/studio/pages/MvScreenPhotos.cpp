#include "pages/MvScreenPhotos.h"

#include "MvImageLoader/MvImageLoader.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace {

constexpr int step = 256; // pixels: small changes of size do not decode again

QSize roundedUp(const QSize &size)
{
    const auto up = [](int length) { return (std::max(length, 1) + step - 1) / step * step; };
    return {up(size.width()), up(size.height())};
}

bool covers(const QSize &a, const QSize &b)
{
    return a.width() >= b.width() && a.height() >= b.height();
}

} // namespace

MvScreenPhotos::MvScreenPhotos(qint64 byteLimit, QObject *parent)
    : QObject(parent)
    , m_images(std::max<qint64>(byteLimit >> 10, 1))
    , m_givenUp(std::make_shared<std::atomic_bool>(false))
{
    m_pool.setMaxThreadCount(1); // what is seen first comes first, and the window keeps a core
}

MvScreenPhotos::~MvScreenPhotos()
{
    *m_givenUp = true;
    m_pool.clear();
    m_pool.waitForDone();
}

QImage MvScreenPhotos::photo(const QString &path, const QSize &bounds)
{
    if (path.isEmpty() || bounds.isEmpty())
        return {};
    const QSize wanted = roundedUp(bounds);
    const State state = m_states.value(path);
    const QImage *image = m_images.object(path);
    const bool isGoodEnough = image != nullptr && covers(state.decoded, wanted);
    if (!isGoodEnough && !state.unreadable && !covers(state.decoding, wanted))
        startDecoding(path, wanted);
    return image != nullptr ? *image : QImage();
}

QSize MvScreenPhotos::boundsFor(const QRectF &frame)
{
    constexpr double reserve = 1.5; // an upright photo of 2:3 in a frame that lies
    const int side = int(std::ceil(reserve * std::max(frame.width(), frame.height())));
    return {side, side};
}

void MvScreenPhotos::clear()
{
    m_pool.clear();
    m_images.clear();
    m_states.clear();
}

void MvScreenPhotos::startDecoding(const QString &path, const QSize &bounds)
{
    m_states[path].decoding = bounds;
    const auto decodeAndHandOver = [this, path, bounds, givenUp = m_givenUp] {
        const QImage image = *givenUp ? QImage() : decode(path, bounds);
        if (!*givenUp) // the destructor waits for this task, so that the object is still there
            QMetaObject::invokeMethod(this, [this, path, bounds, image] { take(path, bounds, image); });
    };
    m_pool.start(decodeAndHandOver);
}

void MvScreenPhotos::take(const QString &path, const QSize &bounds, const QImage &image)
{
    State &state = m_states[path];
    if (state.decoding != bounds)
        return; // a larger version is on its way, or the file is to be read again
    state.decoding = {};
    state.unreadable = image.isNull();
    if (!image.isNull()) {
        state.decoded = bounds;
        m_images.insert(path, new QImage(image), std::max<qint64>(image.sizeInBytes() >> 10, 1));
    }
    Q_EMIT loaded(path);
}

QImage MvScreenPhotos::decode(const QString &path, const QSize &bounds)
{
    MvImageLoader &loader = MvImageLoader::instance();
    const QFileInfo file(path);
    const QSize full = loader.size(file);
    if (full.isEmpty())
        return {};
    const QSize target = full.scaled(bounds, Qt::KeepAspectRatio).boundedTo(full);
    // kept here, and not a second time by the loader, whose room is for photos in print size
    const QImage image = loader.loadUncached(file, target);
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
