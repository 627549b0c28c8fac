// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvInkJpeg.h"

#include <csetjmp>
#include <cstdio> // of which the library's header makes use
#include <cstdlib>

#include <jpeglib.h>

namespace {

struct Errors
{
    jpeg_error_mgr manager; // first: the library hands out its address
    jmp_buf back;
};

[[noreturn]] void leave(j_common_ptr writer)
{
    std::longjmp(reinterpret_cast<Errors *>(writer->err)->back, 1);
}

struct Output
{
    unsigned char *bytes = nullptr;
    unsigned long size = 0;
};

/// Nothing in it may need a destructor: the library leaves it by a jump.
bool write(const unsigned char *inks, int width, int height, int quality, Output *output)
{
    constexpr int inkCount = 4;
    jpeg_compress_struct writer{};
    Errors errors{};
    writer.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = leave;
    if (setjmp(errors.back) != 0) {
        jpeg_destroy_compress(&writer);
        return false;
    }
    jpeg_create_compress(&writer);
    jpeg_mem_dest(&writer, &output->bytes, &output->size);
    writer.image_width = JDIMENSION(width);
    writer.image_height = JDIMENSION(height);
    writer.input_components = inkCount;
    writer.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&writer);
    jpeg_set_colorspace(&writer, JCS_YCCK); // hues may be coarser than light and dark
    jpeg_set_quality(&writer, quality, TRUE);
    writer.optimize_coding = TRUE;
    jpeg_start_compress(&writer, TRUE);
    while (writer.next_scanline < writer.image_height) {
        auto *row = const_cast<JSAMPROW>(inks + size_t(writer.next_scanline) * size_t(width) * inkCount);
        jpeg_write_scanlines(&writer, &row, 1);
    }
    jpeg_finish_compress(&writer);
    jpeg_destroy_compress(&writer);
    return true;
}

} // namespace

QByteArray MvInkJpeg::packed(const QByteArray &inks, const QSize &size, int quality)
{
    Output output;
    const bool isWritten =
        write(reinterpret_cast<const unsigned char *>(inks.constData()), size.width(), size.height(), quality, &output);
    const QByteArray file =
        isWritten ? QByteArray(reinterpret_cast<const char *>(output.bytes), qsizetype(output.size)) : QByteArray();
    std::free(output.bytes);
    return file;
}
