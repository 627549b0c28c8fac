// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvHeifDecoder.h"

#include <QColorSpace>
#include <QIODevice>
#include <QtEndian>

#include <libheif/heif.h>

#include <limits>

namespace {

constexpr int mostReadings = 4;               // of the whole file
constexpr qint64 bytesOfHead = 1 << 20;       // which is read in small pieces, some of them again
constexpr size_t mostBytesOfNotes = 4u << 20; // colour profile, EXIF

/// The decoder's frame, the library's planes, and the picture in red, green and blue twice.
constexpr int usualBytesPerPixel = 14;
constexpr int deepBytesPerPixel = 20; // with more than 8 bits for a channel

using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;

QColorSpace ofProfile(const heif_image_handle *handle)
{
    const size_t size = heif_image_handle_get_raw_color_profile_size(handle);
    if (size == 0 || size > mostBytesOfNotes)
        return {};
    QByteArray profile(qsizetype(size), 0);
    const heif_error error = heif_image_handle_get_raw_color_profile(handle, profile.data());
    return error.code == heif_error_Ok ? QColorSpace::fromIccProfile(profile) : QColorSpace();
}

/// A colour space that is named by numbers. Curves for screens of more than usual brightness are taken for the usual
/// one: paper has no more.
QColorSpace ofNumbers(const heif_image_handle *handle)
{
    heif_color_profile_nclx *numbers = nullptr;
    if (heif_image_handle_get_nclx_color_profile(handle, &numbers).code != heif_error_Ok || !numbers)
        return {};
    const heif_color_primaries primaries = numbers->color_primaries;
    heif_nclx_color_profile_free(numbers);
    switch (primaries) {
    case heif_color_primaries_SMPTE_EG_432_1:
        return QColorSpace(QColorSpace::DisplayP3);
    case heif_color_primaries_ITU_R_BT_2020_2_and_2100_0:
        return QColorSpace({0.3127, 0.3290}, {0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046},
                           QColorSpace::TransferFunction::SRgb);
    default:
        return QColorSpace(QColorSpace::SRgb);
    }
}

QColorSpace colorSpaceOf(const heif_image_handle *handle)
{
    switch (heif_image_handle_get_color_profile_type(handle)) {
    case heif_color_profile_type_rICC:
    case heif_color_profile_type_prof:
        return ofProfile(handle);
    case heif_color_profile_type_nclx:
        return ofNumbers(handle);
    default:
        return {};
    }
}

} // namespace

/// What the library calls to read from the device.
struct MvHeifDecoder::Callbacks
{
    static int64_t position(void *self) { return static_cast<MvHeifDecoder *>(self)->m_device->pos(); }

    static int read(void *data, size_t size, void *self)
    {
        auto *image = static_cast<MvHeifDecoder *>(self);
        if (!image->mayGoOn(qint64(size)))
            return 1;
        const bool isRead = image->m_device->read(static_cast<char *>(data), qint64(size)) == qint64(size);
        image->m_sinceReading.start();
        return isRead ? 0 : 1;
    }

    static int seek(int64_t position, void *self)
    {
        return static_cast<MvHeifDecoder *>(self)->m_device->seek(position) ? 0 : 1;
    }

    static heif_reader_grow_status reaches(int64_t size, void *self)
    {
        return size <= static_cast<MvHeifDecoder *>(self)->m_device->size() ? heif_reader_grow_status_size_reached
                                                                            : heif_reader_grow_status_size_beyond_eof;
    }

    static constexpr heif_reader table = {1, position, read, seek, reaches};
};

void MvHeifDecoder::FreeContext::operator()(heif_context *context) const
{
    heif_context_free(context);
}

void MvHeifDecoder::ReleaseHandle::operator()(heif_image_handle *handle) const
{
    heif_image_handle_release(handle);
}

MvHeifDecoder::MvHeifDecoder(QIODevice *device)
    : m_device(device)
    , m_bytesLeft(mostReadings * device->size() + bytesOfHead)
    , m_secondsLeft(std::numeric_limits<double>::infinity())
    , m_context(heif_context_alloc())
{
    m_sinceReading.start();
    m_device->seek(0);
    heif_context_set_max_decoding_threads(m_context.get(), 0); // in the thread that asks: there are enough of them
    const heif_error error = heif_context_read_from_reader(m_context.get(), &Callbacks::table, this, nullptr);
    heif_image_handle *handle = nullptr;
    if (error.code == heif_error_Ok)
        heif_context_get_primary_image_handle(m_context.get(), &handle);
    m_handle.reset(handle);
}

MvHeifDecoder::~MvHeifDecoder() = default;

bool MvHeifDecoder::mayGoOn(qint64 bytes)
{
    m_secondsLeft -= double(m_sinceReading.nsecsElapsed()) * 1e-9; // what the disk takes does not count
    m_bytesLeft -= bytes;
    m_hasRunOut = m_hasRunOut || m_secondsLeft < 0.0 || m_bytesLeft < 0;
    return !m_hasRunOut;
}

QSize MvHeifDecoder::size() const
{
    return m_handle ? QSize(heif_image_handle_get_width(m_handle.get()), heif_image_handle_get_height(m_handle.get()))
                    : QSize();
}

int MvHeifDecoder::bytesPerPixel() const
{
    const bool isDeep = m_handle && heif_image_handle_get_luma_bits_per_pixel(m_handle.get()) > 8;
    return isDeep ? deepBytesPerPixel : usualBytesPerPixel;
}

QByteArray MvHeifDecoder::exif() const
{
    heif_item_id id = 0;
    if (!m_handle || heif_image_handle_get_list_of_metadata_block_IDs(m_handle.get(), "Exif", &id, 1) != 1)
        return {};
    const size_t size = heif_image_handle_get_metadata_size(m_handle.get(), id);
    if (size <= 4 || size > mostBytesOfNotes)
        return {};
    QByteArray block(qsizetype(size), 0);
    if (heif_image_handle_get_metadata(m_handle.get(), id, block.data()).code != heif_error_Ok)
        return {};
    return block.mid(4 + qsizetype(qMin<quint32>(qFromBigEndian<quint32>(block.constData()), quint32(size))));
}

void MvHeifDecoder::setTimeLimit(double seconds)
{
    m_secondsLeft = seconds;
    m_sinceReading.start();
}

QImage MvHeifDecoder::decode()
{
    if (!m_handle)
        return {};
    const std::unique_ptr<heif_decoding_options, decltype(&heif_decoding_options_free)> options(
        heif_decoding_options_alloc(), heif_decoding_options_free);
    if (options->version >= 3)
        options->strict_decoding = 1;
    const bool hasAlpha = heif_image_handle_has_alpha_channel(m_handle.get());
    m_sinceReading.start();
    heif_image *made = nullptr;
    const heif_error error =
        heif_decode_image(m_handle.get(), &made, heif_colorspace_RGB,
                          hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get());
    const Image decoded(made, heif_image_release);
    mayGoOn(0);
    if (error.code != heif_error_Ok || !decoded || m_hasRunOut)
        return {};
    int stride = 0;
    const uint8_t *plane = heif_image_get_plane_readonly(decoded.get(), heif_channel_interleaved, &stride);
    const QSize pixels(heif_image_get_width(decoded.get(), heif_channel_interleaved),
                       heif_image_get_height(decoded.get(), heif_channel_interleaved));
    if (!plane || pixels != size())
        return {};
    const QImage view(plane, pixels.width(), pixels.height(), stride,
                      hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    QImage image = view.convertToFormat(hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    image.setColorSpace(colorSpaceOf(m_handle.get()));
    return image;
}

extern "C" Q_DECL_EXPORT MvHeifImage *mvMakeHeifImage(QIODevice *device)
{
    return new MvHeifDecoder(device);
}
