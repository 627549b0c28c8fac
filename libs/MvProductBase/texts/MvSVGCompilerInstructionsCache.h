// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProductBase/MvSVGCompilerInstructions.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QCache>
#include <QString>

class MvSVGCompilerInstructionsCache;
extern template class MVPRODUCTBASE_EXPORT MvSingleton<MvSVGCompilerInstructionsCache>;

/// Keeps texts taken apart, up to about four million letters of them. GUI thread only.
class MVPRODUCTBASE_EXPORT MvSVGCompilerInstructionsCache : public MvSingleton<MvSVGCompilerInstructionsCache>
{
public:
    MvSVGCompilerInstructionsCache();

    MvSVGCompilerInstructions instructions(const QString &text);
    void clear() { m_cache.clear(); }
    /// Number of texts kept.
    int count() const { return static_cast<int>(m_cache.count()); }

private:
    QCache<QString, MvSVGCompilerInstructions> m_cache; // costs are letters
};
