// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvImageCache.h"
#include "MvFoto/mvfoto_export.h"

#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QThreadPool>

#include <atomic>
#include <memory>

/// Photos for pages that are painted on the GUI thread, decoded elsewhere.
///
/// While a Use is alive, MvFotoAccess::scaled() decodes nothing on its thread: a photo that is not at hand is given in
/// another size, if there is one, or not at all, and comes in behind the scenes. arrived() tells when all that a page
/// lacked is there, to paint it again. What no page's last use asked for is let go. To be used from the GUI thread.
class MVFOTO_EXPORT MvFotoStock : public QObject
{
    Q_OBJECT

public:
    /// Photos asked for while it lives are the page's, in place of those of its last use. Uses may be nested; the
    /// innermost counts.
    class MVFOTO_EXPORT Use
    {
    public:
        explicit Use(MvFotoStock &stock, int page = 0);
        ~Use();
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;

        /// Whether every photo asked for up to now was there.
        bool isComplete() const;

    private:
        MvFotoStock &m_stock;
        MvFotoStock *m_outer;
        int m_page;
        int m_outerPage;
    };

    explicit MvFotoStock(QObject *parent = nullptr);
    /// Waits for the photo that is being decoded.
    ~MvFotoStock() override;

Q_SIGNALS:
    void arrived(int page);

private:
    friend class MvFotoAccess;
    using Key = MvImageCache::Key;

    struct Photo
    {
        QImage image;
        QSet<int> pages;
    };

    /// The stock in use on this thread, if any.
    static MvFotoStock *current();
    QImage scaled(const QFileInfo &file, const QSize &bounds);
    QImage otherSize(const Key &key) const;
    bool lacks(int page) const;
    void startUse(int page);
    void endUse(int page);
    void decodeNext();
    void take(const Key &key, const QImage &image);

    int m_page = 0;             // of the innermost use
    QHash<Key, Photo> m_photos; // null images are those that cannot be read
    QHash<Key, QSet<int>> m_lacking;
    QList<Key> m_queue;
    bool m_isDecoding = false;
    std::shared_ptr<std::atomic_bool> m_givenUp;
    QThreadPool m_pool;
};
