#include "MvImageLoader/MvImageLoader.h"

#include "MvImageLoader/MvImageFormat.h"

#include <QColorSpace>
#include <QDateTime>
#include <QFile>
#include <QImageReader>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

template class MvSingleton<MvImageLoader>;

namespace {

/// An image file opened for reading in its own format; closed with the object.
class OpenImage
{
public:
    explicit OpenImage(const QFileInfo &file)
        : m_device(file.filePath())
    {
        if (!openRegular(file.filePath()))
            return;
        m_format = MvImageFormat::fromContent(m_device.peek(MvImageFormat::headSize));
        if (m_format.isEmpty())
            return;
        m_reader.setDevice(&m_device);
        m_reader.setAutoDetectImageFormat(false); // no other reader gets to see the file
        m_reader.setFormat(m_format);
        m_reader.setAutoTransform(true);
        m_reader.setQuality(90); // scaled decoding: smooth instead of fast
    }

    QByteArray format() const { return m_format; }

    /// Size as it will be seen, after turning.
    QSize size() const
    {
        if (m_format.isEmpty())
            return {};
        const QSize size = m_reader.size();
        return isTurned() ? size.transposed() : size;
    }

    QImage read(const QSize &bounds)
    {
        const QSize full = size();
        if (full.isEmpty() || qint64(full.width()) * full.height() > MvImageLoader::decodeLimit / 4)
            return {};
        const QSize target = bounds.isEmpty() ? full : full.scaled(bounds, Qt::KeepAspectRatio);
        if (target.isEmpty())
            return {};
        if (full.width() > 2 * target.width() && full.height() > 2 * target.height())
            m_reader.setScaledSize(isTurned() ? 2 * target.transposed() : 2 * target);
        QImage image = m_reader.read();
        if (image.isNull())
            return {};
        if (image.size() != target)
            image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return readyToPaint(image);
    }

private:
    bool openRegular(const QString &path)
    {
        if (path.startsWith(u':'))
            return m_device.open(QIODevice::ReadOnly);
        // without waiting: a pipe nobody writes to must not stop the program
        const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor < 0)
            return false;
        struct stat status = {};
        if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
            ::close(descriptor);
            return false;
        }
        return m_device.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    }

    bool isTurned() const { return m_reader.transformation() & QImageIOHandler::TransformationRotate90; }

    static QImage readyToPaint(const QImage &image)
    {
        QImage ready = image;
        const QColorSpace srgb(QColorSpace::SRgb);
        if (ready.colorSpace().isValid() && ready.colorSpace() != srgb)
            ready.convertToColorSpace(srgb);
        ready.convertTo(ready.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        return ready;
    }

    QFile m_device;
    QImageReader m_reader;
    QByteArray m_format;
};

MvImageCache::Key keyFor(const QFileInfo &file, const QSize &target)
{
    return {file.absoluteFilePath(), file.lastModified().toMSecsSinceEpoch(), file.size(), target};
}

} // namespace

MvImageLoader::MvImageLoader()
    : m_cache(cacheLimit)
{
    QImageReader::setAllocationLimit(int(decodeLimit >> 20));
}

QImage MvImageLoader::load(const QFileInfo &file)
{
    const QFileInfo present(file.filePath()); // the given one may remember an older state
    if (!present.isFile())
        return {};
    return m_cache.image(keyFor(present, QSize()), [&] { return OpenImage(present).read(QSize()); });
}

QImage MvImageLoader::loadScaled(const QFileInfo &file, const QSize &bounds)
{
    const QFileInfo present(file.filePath());
    if (bounds.isEmpty() || !present.isFile())
        return {};
    return m_cache.image(keyFor(present, bounds), [&] { return OpenImage(present).read(bounds); });
}

QImage MvImageLoader::loadUncached(const QFileInfo &file, const QSize &bounds)
{
    return bounds.isEmpty() ? QImage() : OpenImage(file).read(bounds);
}

QImage MvImageLoader::kept(const QFileInfo &file, const QSize &bounds)
{
    return m_cache.kept(keyFor(QFileInfo(file.filePath()), bounds));
}

QSize MvImageLoader::size(const QFileInfo &file)
{
    const QFileInfo present(file.filePath());
    return present.isFile() ? OpenImage(present).size() : QSize();
}

QByteArray MvImageLoader::format(const QFileInfo &file)
{
    return OpenImage(file).format();
}
