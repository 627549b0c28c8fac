// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPngFile.h"

#include <csetjmp>

#include <png.h>
#include <zlib.h>

namespace {

constexpr int level = 4;                     // of deflate; runs are found at any
constexpr size_t piece = size_t(256) * 1024; // bytes of a chunk

struct Picture
{
    const uchar *pixels;
    qsizetype bytesPerLine;
    png_uint_32 width, height;
    png_uint_32 dotsPerMetreX, dotsPerMetreY;
    char *title; // null without one
    bool isLatin;
};

void append(png_structp writer, png_bytep bytes, size_t size)
{
    static_cast<QByteArray *>(png_get_io_ptr(writer))->append(reinterpret_cast<const char *>(bytes), qsizetype(size));
}

void finish(png_structp)
{}

/// The words are for developers; there is nobody here to read them.
void ignore(png_structp, png_const_charp)
{}

void describe(png_structp writer, png_infop info, const Picture &picture)
{
    png_set_IHDR(writer, info, picture.width, picture.height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_sRGB_gAMA_and_cHRM(writer, info, PNG_sRGB_INTENT_PERCEPTUAL);
    png_set_pHYs(writer, info, picture.dotsPerMetreX, picture.dotsPerMetreY, PNG_RESOLUTION_METER);
    if (picture.title) {
        static char key[] = "Title";
        png_text text{};
        text.compression = picture.isLatin ? PNG_TEXT_COMPRESSION_NONE : PNG_ITXT_COMPRESSION_NONE;
        text.key = key;
        text.text = picture.title;
        png_set_text(writer, info, &text, 1);
    }
}

/// Nothing in it may need a destructor: the library leaves it by a jump.
bool write(const Picture &picture, QByteArray *file)
{
    png_structp writer = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, ignore);
    png_infop info = writer ? png_create_info_struct(writer) : nullptr;
    if (!info || setjmp(png_jmpbuf(writer)) != 0) {
        png_destroy_write_struct(&writer, &info);
        return false;
    }
    png_set_write_fn(writer, file, append, finish);
    png_set_compression_buffer_size(writer, piece);
    png_set_compression_level(writer, level);
    png_set_compression_strategy(writer, Z_RLE);
    png_set_filter(writer, PNG_FILTER_TYPE_BASE, PNG_FILTER_PAETH);
    describe(writer, info, picture);
    png_write_info(writer, info);
    if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        png_set_bgr(writer);
        png_set_filler(writer, 0, PNG_FILLER_AFTER);
    } else {
        png_set_filler(writer, 0, PNG_FILLER_BEFORE);
    }
    for (png_uint_32 row = 0; row < picture.height; ++row)
        png_write_row(writer, picture.pixels + qsizetype(row) * picture.bytesPerLine);
    png_write_end(writer, info);
    png_destroy_write_struct(&writer, &info);
    return true;
}

} // namespace

QByteArray MvPngFile::packed(const QImage &image, const QString &title)
{
    if (image.isNull() || image.format() != QImage::Format_RGB32)
        return {};
    QByteArray latin = title.toLatin1();
    const bool isLatin = QString::fromLatin1(latin) == title;
    QByteArray text = isLatin ? latin : title.toUtf8();
    const Picture picture{image.constBits(),
                          image.bytesPerLine(),
                          png_uint_32(image.width()),
                          png_uint_32(image.height()),
                          png_uint_32(image.dotsPerMeterX()),
                          png_uint_32(image.dotsPerMeterY()),
                          text.isEmpty() ? nullptr : text.data(),
                          isLatin};
    QByteArray file;
    if (!write(picture, &file))
        file.clear();
    return file;
}
