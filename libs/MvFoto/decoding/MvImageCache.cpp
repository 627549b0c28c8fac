// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvImageCache.h"

MvImageCache::MvImageCache(qint64 byteLimit)
    : m_byteLimit(byteLimit)
{}

QImage MvImageCache::image(const Key &key, const std::function<QImage()> &make)
{
    std::unique_lock lock(m_mutex);
    while (true) {
        if (const auto found = m_entries.find(key); found != m_entries.end()) {
            m_uses.splice(m_uses.begin(), m_uses, found->use);
            return found->image;
        }
        if (!m_inTheMaking.contains(key))
            break;
        m_made.wait(lock);
    }
    m_inTheMaking.insert(key);
    lock.unlock();
    const QImage made = make();
    lock.lock();
    m_inTheMaking.remove(key);
    keep(key, made);
    m_made.notify_all();
    return made;
}

std::optional<QImage> MvImageCache::kept(const Key &key)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(key);
    if (found == m_entries.end())
        return std::nullopt;
    m_uses.splice(m_uses.begin(), m_uses, found->use);
    return found->image;
}

QImage MvImageCache::otherSize(const Key &key) const
{
    const std::lock_guard lock(m_mutex);
    QImage best;
    for (auto it = m_entries.cbegin(); it != m_entries.cend(); ++it) {
        Key same = it.key();
        same.target = key.target;
        if (same == key && it->image.width() > best.width())
            best = it->image;
    }
    return best;
}

void MvImageCache::clear()
{
    const std::lock_guard lock(m_mutex);
    m_entries.clear();
    m_uses.clear();
    m_byteCount = 0;
}

qint64 MvImageCache::byteCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_byteCount;
}

void MvImageCache::keep(const Key &key, const QImage &image)
{
    if (cost(image) > m_byteLimit)
        return;
    m_uses.push_front(key);
    m_entries.insert(key, {image, m_uses.begin()});
    m_byteCount += cost(image);
    dropSurplus();
}

void MvImageCache::setByteLimit(qint64 byteLimit)
{
    const std::lock_guard lock(m_mutex);
    m_byteLimit = byteLimit;
    dropSurplus();
}

void MvImageCache::dropSurplus()
{
    while (m_byteCount > m_byteLimit) {
        m_byteCount -= cost(m_entries.take(m_uses.back()).image);
        m_uses.pop_back();
    }
}

qint64 MvImageCache::cost(const QImage &image)
{
    return image.sizeInBytes() + 512; // the record itself: also null images must not gather without end
}
