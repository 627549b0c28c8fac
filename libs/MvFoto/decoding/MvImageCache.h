// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QHash>
#include <QImage>
#include <QSet>
#include <QSize>
#include <QString>

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <optional>

/// Decoded images, bounded in bytes; what was not asked for longest goes first. Any thread; a thread that asks for an
/// image another one is just making waits for that one.
class MVFOTO_EXPORT MvImageCache
{
public:
    /// An image of a file in a certain state, decoded for a certain size (an empty one: full size) and brought into a
    /// form, of which the owner of the cache may have several.
    struct Key
    {
        QString path;
        qint64 changed = 0; // milliseconds since the epoch
        qint64 bytes = 0;
        QSize target;
        int form = 0;

        bool operator==(const Key &) const = default;
    };

    explicit MvImageCache(qint64 byteLimit);

    /// The kept image, or the one that `make` gives. Null images are kept too, so that a broken file is read once.
    QImage image(const Key &key, const std::function<QImage()> &make);

    /// The kept image, which is null for a broken file; no value when there is none. Never waits.
    std::optional<QImage> kept(const Key &key);
    /// The widest image that is kept of the same file in the same form, whatever its target; null without one.
    QImage otherSize(const Key &key) const;
    void clear();
    /// Drops what is too much.
    void setByteLimit(qint64 byteLimit);
    /// Sum of the kept images in bytes; never above the limit.
    qint64 byteCount() const;

private:
    struct Entry
    {
        QImage image;
        std::list<Key>::iterator use;
    };

    void keep(const Key &key, const QImage &image);
    void dropSurplus();
    static qint64 cost(const QImage &image);

    mutable std::mutex m_mutex;
    std::condition_variable m_made;
    QHash<Key, Entry> m_entries;
    std::list<Key> m_uses; // latest first
    QSet<Key> m_inTheMaking;
    qint64 m_byteLimit;
    qint64 m_byteCount = 0;
};

inline size_t qHash(const MvImageCache::Key &key, size_t seed = 0)
{
    return qHashMulti(seed, key.path, key.changed, key.bytes, key.target.width(), key.target.height(), key.form);
}
