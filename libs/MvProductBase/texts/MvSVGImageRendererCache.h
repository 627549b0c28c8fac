// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QByteArray>
#include <QCache>

#include <memory>

class QSvgRenderer;
class MvSVGImageRendererCache;
extern template class MVPRODUCTBASE_EXPORT MvSingleton<MvSVGImageRendererCache>;

/// Keeps SVG artwork filled for a day, ready to be painted, up to about 16 MiB of artwork. GUI thread only.
class MVPRODUCTBASE_EXPORT MvSVGImageRendererCache : public MvSingleton<MvSVGImageRendererCache>
{
public:
    MvSVGImageRendererCache();

    /// A renderer of the artwork with its placeholders filled; it lives on after clear() as long as it is held.
    /// Artwork that is no SVG gives a renderer that is not valid.
    std::shared_ptr<QSvgRenderer> renderer(const QByteArray &svg, const MvCalendariumContentKey &key);

    /// To be called when what the placeholders stand for may have changed.
    void clear() { m_cache.clear(); }
    /// Number of renderers kept.
    int count() const { return static_cast<int>(m_cache.count()); }

private:
    struct Key
    {
        QByteArray svg;
        MvCalendariumContentKey content;

        bool operator==(const Key &) const = default;
        friend size_t qHash(const Key &key, size_t seed = 0) { return qHashMulti(seed, key.svg, key.content); }
    };

    QCache<Key, std::shared_ptr<QSvgRenderer>> m_cache; // costs are bytes of artwork
};
