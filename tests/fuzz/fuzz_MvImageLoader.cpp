#include "MvFuzz.h"

#include "MvImageLoader/MvImageLoader.h"

/// An image file: its size, its format and its pixels within bounds.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QFileInfo file = MvFuzz::file(MvFuzz::bytes(data, size));
    MvImageLoader::format(file);
    const QSize whole = MvImageLoader::instance().size(file);
    if (qint64(whole.width()) * whole.height() > 4'000'000) // the time of the search, not its aim
        return 0;
    const QImage image = MvImageLoader::instance().loadUncached(file, {64, 48});
    MvFuzz::check(image.width() <= 64 && image.height() <= 48, "an image stays within its bounds");
    return 0;
}
