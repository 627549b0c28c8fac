// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoLoader.h"

#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvFotoService.h"
#include "MvFoto/MvImageLoader.h"

namespace {

bool isQuick(const MvFoto &foto)
{
    return !foto.mayBeOpened() || MvImageLoader::isQuick(foto.localFileInfo());
}

} // namespace

void MvFotoLoader::midRes(const MvFoto &foto, int quality, int caching, QObject *receiver,
                          const std::function<void(const QImage &)> &use)
{
    if (isQuick(foto)) {
        use(MvFotoAccess::midRes(foto, quality, caching));
        return;
    }
    MvFotoService::instance().run(MvFotoService::Urgency::Awaited, receiver, [foto, quality, caching, use] {
        const QImage image = MvFotoAccess::midRes(foto, quality, caching);
        return [use, image] { use(image); };
    });
}
