// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvModelBase/mvmodelbase_export.h"

#include <QFont>

class MvFontCreator;
extern template class MVMODELBASE_EXPORT MvSingleton<MvFontCreator>;

/// The fonts that a page has when nobody has chosen any.
class MVMODELBASE_EXPORT MvFontCreator : public MvSingleton<MvFontCreator>
{
public:
    /// "Lato".
    QString defaultFontFamily() const;
    /// The default family at 10 points, normal weight.
    static QFont createDefaultFont();
    /// The default family for what stands beside pages, in sizes that no screen has a say in.
    static QFont createMarkFont(int pixelSize);
};
