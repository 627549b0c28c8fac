// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvScreenPhotos.h"

#include "MvFoto/MvImageLoader.h"

#include <QDateTime>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

constexpr int step = 256; // pixels: small changes of size do not decode again
constexpr std::chrono::milliseconds watchInterval(2000);

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
    m_watch.setInterval(watchInterval);
    connect(&m_watch, &QTimer::timeout, this, &MvScreenPhotos::recheck);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            recheck();
    });
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
    m_watch.stop();
    m_isRechecking = false; // if it waited for its turn, it is given up
}

MvScreenPhotos::Stamp MvScreenPhotos::stampOf(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() ? Stamp{file.lastModified().toMSecsSinceEpoch(), file.size()} : Stamp();
}

void MvScreenPhotos::recheck()
{
    if (m_isRechecking || m_states.isEmpty())
        return;
    m_isRechecking = true;
    const auto look = [this, paths = m_states.keys(), givenUp = m_givenUp] {
        QHash<QString, Stamp> stamps;
        for (const QString &path : paths) {
            if (*givenUp)
                return;
            stamps.insert(path, stampOf(path));
        }
        QMetaObject::invokeMethod(this, [this, stamps] { takeStamps(stamps); });
    };
    m_pool.start(look); // not here: the folder may be far away
}

void MvScreenPhotos::takeStamps(const QHash<QString, Stamp> &stamps)
{
    m_isRechecking = false;
    for (auto it = stamps.begin(); it != stamps.end(); ++it) {
        const auto known = m_states.constFind(it.key());
        if (known == m_states.constEnd() || !known->decoding.isEmpty() || known->stamp == it.value())
            continue;
        m_states.erase(known); // the image stays until there is a new one
        Q_EMIT loaded(it.key());
    }
    watchUnreadable();
}

void MvScreenPhotos::watchUnreadable()
{
    const bool isNeeded =
        std::any_of(m_states.cbegin(), m_states.cend(), [](const State &state) { return state.unreadable; });
    if (isNeeded != m_watch.isActive())
        isNeeded ? m_watch.start() : m_watch.stop();
}

void MvScreenPhotos::startDecoding(const QString &path, const QSize &bounds)
{
    m_states[path].decoding = bounds;
    const auto decodeAndHandOver = [this, path, bounds, givenUp = m_givenUp] {
        const Decoded decoded = *givenUp ? Decoded() : decode(path, bounds);
        if (!*givenUp) // the destructor waits for this task, so that the object is still there
            QMetaObject::invokeMethod(this, [this, path, bounds, decoded] { take(path, bounds, decoded); });
    };
    m_pool.start(decodeAndHandOver);
}

void MvScreenPhotos::take(const QString &path, const QSize &bounds, const Decoded &decoded)
{
    State &state = m_states[path];
    if (state.decoding != bounds)
        return; // a larger version is on its way, or the file is to be read again
    state.decoding = {};
    const QImage &image = decoded.image;
    state.stamp = decoded.stamp;
    state.full = decoded.full;
    state.unreadable = image.isNull();
    watchUnreadable();
    if (image.isNull()) {
        m_images.remove(path);
    } else {
        state.decoded = bounds;
        m_images.insert(path, new QImage(image), std::max<qint64>(image.sizeInBytes() >> 10, 1));
    }
    Q_EMIT loaded(path);
}

MvScreenPhotos::Decoded MvScreenPhotos::decode(const QString &path, const QSize &bounds)
{
    const Stamp stamp = stampOf(path); // before: what changes while it is read is read again
    MvImageLoader &loader = MvImageLoader::instance();
    const QFileInfo file(path);
    const QSize full = loader.size(file);
    if (full.isEmpty())
        return {{}, {}, stamp};
    const QSize target = full.scaled(bounds, Qt::KeepAspectRatio).boundedTo(full);
    // kept here, and not a second time by the loader, whose room is for photos in print size
    const QImage image = loader.loadUncached(file, target);
    return {image.convertToFormat(QImage::Format_ARGB32_Premultiplied), full, stamp};
}
