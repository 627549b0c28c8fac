// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvFoto/MvExif.h"
#include "MvFoto/MvGuardedImageReader.h"

/// An image: pixels within bounds, or a reason why there are none.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    MvGuardedImageReader reader(MvFuzz::bytes(data, size));
    const QSize full = reader.size();
    MvFuzz::check(reader.exif().captured().isNull() || reader.exif().captured().isValid(), "a time or none");
    if (qint64(full.width()) * full.height() > 4'000'000) // would take the time of the search, which is not its aim
        return 0;
    reader.setTimeLimit(5.0);
    const QImage image = reader.read({64, 48});
    MvFuzz::check(image.width() <= 64 && image.height() <= 48, "an image stays within its bounds");
    MvFuzz::check(image.isNull() != reader.error().isEmpty(), "an error for what gives no image, and for that alone");
    return 0;
}
