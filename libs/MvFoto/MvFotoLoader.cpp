#include "MvFoto/MvFotoLoader.h"

#include "MvFoto/MvFotoAccess.h"

#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>

#include <memory>

namespace {

constexpr qint64 smallPhoto = 4'500'000; // pixels; decoded in some 50 ms

bool isSmall(const MvFoto &foto)
{
    const QSize size = MvFotoAccess::preferredSize(foto);
    return !size.isValid() || qint64(size.width()) * size.height() <= smallPhoto;
}

} // namespace

void MvFotoLoader::midRes(const MvFoto &foto, int quality, int caching, QObject *receiver,
                          const std::function<void(const QImage &)> &use)
{
    if (isSmall(foto)) {
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
