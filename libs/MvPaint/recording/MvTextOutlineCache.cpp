// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextOutlineCache.h"

#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvGlyphOutlines.h"

#include <QFontMetricsF>

#include <algorithm>

template class MvSingleton<MvTextOutlineCache>;

namespace {
constexpr int entryCost = 16;     // of an entry besides its elements, so that blank texts are bounded too
constexpr int pictureCost = 1000; // in elements
} // namespace

MvTextOutlineCache::MvTextOutlineCache(int maximumElements)
    : m_outlines(std::max(0, maximumElements))
{}

void MvTextOutlineCache::setupInstance()
{
    MvFontSupply::whenFontsChange([this] {
        MvGlyphOutlines::instance().forget();
        clear();
    });
}

MvTextOutlineCache::Key MvTextOutlineCache::key(const QFont &font, const QString &text)
{
    return {font, font.pixelSize() > 0 ? 0 : int(QFontMetricsF(font).fontDpi()), text};
}

double MvTextOutlineCache::advance(const QFont &font, const QString &text)
{
    const Key key = MvTextOutlineCache::key(font, text);
    {
        const QMutexLocker lock(&m_mutex);
        if (const double *known = m_advances.object(key))
            return *known;
    }
    MvFontSupply::provide(font, text);
    const double fresh = QFontMetricsF(font).horizontalAdvance(text);
    if (text.size() > longestKept)
        return fresh;
    const QMutexLocker lock(&m_mutex);
    m_advances.insert(key, new double(fresh));
    return fresh;
}

MvTextOutline MvTextOutlineCache::outline(const QFont &font, const QString &text)
{
    const Key key = MvTextOutlineCache::key(font, text);
    {
        const QMutexLocker lock(&m_mutex);
        if (const MvTextOutline *known = m_outlines.object(key))
            return *known;
    }
    // shaping takes long: others may ask meanwhile, and the last to finish an equal outline puts it in
    const MvTextOutline fresh(font, text);
    if (text.size() > longestKept)
        return fresh;
    const QMutexLocker lock(&m_mutex);
    m_outlines.insert(key, new MvTextOutline(fresh),
                      entryCost + fresh.elementCount() + pictureCost * int(fresh.pictures().size()));
    return fresh;
}

void MvTextOutlineCache::setMaximumElements(int elements)
{
    const QMutexLocker lock(&m_mutex);
    m_outlines.setMaxCost(std::max(0, elements));
}

int MvTextOutlineCache::maximumElements() const
{
    const QMutexLocker lock(&m_mutex);
    return int(m_outlines.maxCost());
}

int MvTextOutlineCache::elementCount() const
{
    const QMutexLocker lock(&m_mutex);
    return int(m_outlines.totalCost() - entryCost * m_outlines.count());
}

int MvTextOutlineCache::outlineCount() const
{
    const QMutexLocker lock(&m_mutex);
    return int(m_outlines.count());
}

void MvTextOutlineCache::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_outlines.clear();
    m_advances.clear();
}
