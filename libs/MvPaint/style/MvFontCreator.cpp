// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvFontCreator.h"

template class MvSingleton<MvFontCreator>;

QString MvFontCreator::defaultFontFamily() const
{
    return QStringLiteral("Lato");
}

QFont MvFontCreator::createDefaultFont()
{
    return QFont(instance().defaultFontFamily(), 10);
}

QFont MvFontCreator::createMarkFont(int pixelSize)
{
    QFont font = createDefaultFont();
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}
