// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoStock.h"

#include "MvFoto/MvImageLoader.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace {

thread_local MvFotoStock *inUse = nullptr;

} // namespace

MvFotoStock::Use::Use(MvFotoStock &stock, int page)
    : m_stock(stock)
    , m_outer(std::exchange(inUse, &stock))
    , m_page(page)
    , m_outerPage(stock.m_page)
{
    stock.startUse(page);
}

MvFotoStock::Use::~Use()
{
    m_stock.endUse(m_page);
    m_stock.m_page = m_outerPage;
    inUse = m_outer;
}

bool MvFotoStock::Use::isComplete() const
{
    return !m_stock.lacks(m_page);
}

MvFotoStock::MvFotoStock(QObject *parent)
    : QObject(parent)
    , m_givenUp(std::make_shared<std::atomic_bool>(false))
{
    m_pool.setMaxThreadCount(1); // leaves a core to the window
}

MvFotoStock::~MvFotoStock()
{
    *m_givenUp = true;
    m_pool.waitForDone();
}

MvFotoStock *MvFotoStock::current()
{
    return inUse;
}

void MvFotoStock::startUse(int page)
{
    m_page = page;
    for (Photo &photo : m_photos)
        photo.pages.remove(page);
    for (QSet<int> &pages : m_lacking)
        pages.remove(page);
}

void MvFotoStock::endUse(int page)
{
    if (!lacks(page)) // else another size may be of use until then
        m_photos.removeIf([](const auto &photo) { return photo.value().pages.isEmpty(); });
    decodeNext();
}

bool MvFotoStock::lacks(int page) const
{
    return std::any_of(m_lacking.begin(), m_lacking.end(),
                       [page](const QSet<int> &pages) { return pages.contains(page); });
}

QImage MvFotoStock::scaled(const QFileInfo &file, const QSize &bounds)
{
    const QFileInfo present(file.filePath()); // the given QFileInfo may have cached an older state
    if (bounds.isEmpty() || !present.isFile())
        return {};
    const Key key{present.absoluteFilePath(), present.lastModified().toMSecsSinceEpoch(), present.size(), bounds};
    if (const auto found = m_photos.find(key); found != m_photos.end()) {
        found->pages.insert(m_page);
        return found->image;
    }
    if (const QImage kept = MvImageLoader::instance().kept(present, bounds); !kept.isNull()) {
        m_photos.insert(key, {kept, {m_page}});
        return kept;
    }
    if (!m_lacking.contains(key))
        m_queue.append(key);
    m_lacking[key].insert(m_page);
    return otherSize(key);
}

QImage MvFotoStock::otherSize(const Key &key) const
{
    QImage best;
    for (auto it = m_photos.begin(); it != m_photos.end(); ++it) {
        Key same = key;
        same.target = it.key().target;
        if (same == it.key() && it->image.width() > best.width())
            best = it->image;
    }
    return best;
}

/// One at a time; those that no page lacks any more are passed over.
void MvFotoStock::decodeNext()
{
    while (!m_isDecoding && !m_queue.isEmpty()) {
        const Key key = m_queue.takeFirst();
        if (m_lacking.value(key).isEmpty()) {
            m_lacking.remove(key);
            continue;
        }
        m_isDecoding = true;
        m_pool.start([this, key, givenUp = m_givenUp] {
            const QImage image =
                *givenUp ? QImage() : MvImageLoader::instance().loadScaled(QFileInfo(key.path), key.target);
            if (!*givenUp) // the destructor waits for this task, so that the object is still there
                QMetaObject::invokeMethod(this, [this, key, image] { take(key, image); });
        });
    }
}

void MvFotoStock::take(const Key &key, const QImage &image)
{
    m_isDecoding = false;
    const QSet<int> pages = m_lacking.take(key);
    if (!pages.isEmpty())
        m_photos.insert(key, {image, pages});
    decodeNext();
    for (const int page : pages) {
        if (!lacks(page))
            Q_EMIT arrived(page);
    }
}
