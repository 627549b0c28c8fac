// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvModelBase/mvmodelbase_export.h"

#include <QHash>
#include <QPixmap>

class MvQualityTypeManager;
extern template class MVMODELBASE_EXPORT MvSingleton<MvQualityTypeManager>;

/// The symbols that tell a user on screen where a page will not print well. GUI thread only.
class MVMODELBASE_EXPORT MvQualityTypeManager : public MvSingleton<MvQualityTypeManager>
{
public:
    /// A warning triangle that fills a square of the given edge in pixels; drawn once per size. A size below 1 gives a
    /// null pixmap, a size above 512 the pixmap of 512.
    QPixmap qualityWarningPixmap(int size);

private:
    QHash<int, QPixmap> m_warnings; // by edge
};
