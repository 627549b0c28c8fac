// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvImageLoader.h"

#include "MvCore/MvRegularFile.h"
#include "MvFoto/MvGuardedImageReader.h"

#include <QDateTime>
#include <QImageReader>

template class MvSingleton<MvImageLoader>;

namespace {

constexpr qsizetype mostErrors = 1000; // kept
constexpr qsizetype mostSizes = 10'000;
constexpr qsizetype mostJpegs = 1000;

MvImageCache::Key keyFor(const QFileInfo &file, const QSize &target)
{
    return {file.absoluteFilePath(), file.lastModified().toMSecsSinceEpoch(), file.size(), target};
}

} // namespace

MvImageLoader::MvImageLoader()
    : m_cache(cacheLimit)
{}

void MvImageLoader::raiseProcessLimit()
{
    QImageReader::setAllocationLimit(int(MvGuardedImageReader::memoryLimit >> 20));
}

QImage MvImageLoader::read(const QFileInfo &file, const QSize &bounds)
{
    MvGuardedImageReader reader(file);
    const QImage image = reader.read(bounds);
    if (!reader.error().isEmpty()) {
        const QMutexLocker lock(&m_mutex);
        if (m_errors.size() >= mostErrors)
            m_errors.clear();
        m_errors.insert(keyFor(file, QSize()), reader.error());
    }
    if (reader.isUnchangedJpeg()) {
        const QMutexLocker lock(&m_mutex);
        if (m_jpegs.size() >= mostJpegs)
            m_jpegs.clear();
        m_jpegs.insert(image.cacheKey(), keyFor(file, QSize()));
    }
    return image;
}

QByteArray MvImageLoader::jpegOf(const QImage &image)
{
    MvImageCache::Key key;
    {
        const QMutexLocker lock(&m_mutex);
        key = m_jpegs.value(image.cacheKey());
    }
    if (key.path.isEmpty() || keyFor(QFileInfo(key.path), QSize()) != key)
        return {};
    const auto file = MvRegularFile::open(QFileInfo(key.path)).file;
    return file ? file->readAll() : QByteArray();
}

QString MvImageLoader::error(const QFileInfo &file)
{
    const QFileInfo present(file.filePath()); // the given QFileInfo may have cached an older state
    {
        const QMutexLocker lock(&m_mutex);
        const QString known = m_errors.value(keyFor(present, QSize()));
        if (!known.isEmpty())
            return known;
    }
    MvGuardedImageReader reader(present);
    if (reader.size().isEmpty())
        reader.read({}); // sets the error
    return reader.error();
}

QImage MvImageLoader::load(const QFileInfo &file)
{
    const QFileInfo present(file.filePath());
    if (!present.isFile())
        return {};
    return m_cache.image(keyFor(present, QSize()), [&] { return read(present, QSize()); });
}

QImage MvImageLoader::loadScaled(const QFileInfo &file, const QSize &bounds)
{
    const QFileInfo present(file.filePath());
    if (bounds.isEmpty() || !present.isFile())
        return {};
    return m_cache.image(keyFor(present, bounds), [&] { return read(present, bounds); });
}

QImage MvImageLoader::loadUncached(const QFileInfo &file, const QSize &bounds)
{
    return bounds.isEmpty() ? QImage() : read(QFileInfo(file.filePath()), bounds);
}

QSize MvImageLoader::size(const QFileInfo &file)
{
    const QFileInfo present(file.filePath());
    if (!present.isFile())
        return {};
    const MvImageCache::Key key = keyFor(present, QSize());
    {
        const QMutexLocker lock(&m_mutex);
        if (const auto known = m_sizes.constFind(key); known != m_sizes.cend())
            return *known;
    }
    const QSize size = MvGuardedImageReader(present).size();
    if (!size.isEmpty()) { // what cannot be opened now may be later
        const QMutexLocker lock(&m_mutex);
        if (m_sizes.size() >= mostSizes)
            m_sizes.clear();
        m_sizes.insert(key, size);
    }
    return size;
}

bool MvImageLoader::isQuick(const QFileInfo &file)
{
    return MvGuardedImageReader(file).isQuick();
}

QByteArray MvImageLoader::format(const QFileInfo &file)
{
    return MvGuardedImageReader(file).format();
}
