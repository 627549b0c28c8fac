// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvSVGImageRendererCache.h"

#include "MvModelBase/MvFontSupply.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"

#include <QSvgRenderer>

template class MvSingleton<MvSVGImageRendererCache>;

MvSVGImageRendererCache::MvSVGImageRendererCache()
    : m_cache(16LL * 1024 * 1024)
{}

std::shared_ptr<QSvgRenderer> MvSVGImageRendererCache::renderer(const QByteArray &svg,
                                                                const MvCalendariumContentKey &key)
{
    const Key cacheKey = {svg, key};
    if (const std::shared_ptr<QSvgRenderer> *known = m_cache.object(cacheKey))
        return *known;
    const QByteArray filled = MvSVGCompilerInstructionsFactory::instance().artwork(svg, key);
    if (filled.contains("<text"))
        MvFontSupply::provideAll();
    auto made = std::make_shared<QSvgRenderer>(filled);
    m_cache.insert(cacheKey, new std::shared_ptr<QSvgRenderer>(made), svg.size() + filled.size());
    return made;
}
