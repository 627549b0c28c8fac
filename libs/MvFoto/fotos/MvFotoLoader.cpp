// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoLoader.h"

#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvImageLoader.h"

#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>

#include <memory>

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
    auto *watcher = new QFutureWatcher<QImage>(receiver);
    QObject::connect(watcher, &QFutureWatcher<QImage>::finished, receiver, [watcher, use] {
        watcher->deleteLater();
        use(watcher->result());
    });
    const auto promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    watcher->setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, foto, quality, caching] {
        promise->addResult(MvFotoAccess::midRes(foto, quality, caching));
        promise->finish();
    });
}
