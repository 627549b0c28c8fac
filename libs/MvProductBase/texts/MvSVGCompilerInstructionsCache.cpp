// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"

template class MvSingleton<MvSVGCompilerInstructionsCache>;

MvSVGCompilerInstructionsCache::MvSVGCompilerInstructionsCache()
    : m_cache(4LL * 1024 * 1024)
{}

MvSVGCompilerInstructions MvSVGCompilerInstructionsCache::instructions(const QString &text)
{
    if (const MvSVGCompilerInstructions *known = m_cache.object(text))
        return *known;
    const MvSVGCompilerInstructions made(text);
    m_cache.insert(text, new MvSVGCompilerInstructions(made), text.size() + 1);
    return made;
}
