// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"

#include <QFontDatabase>

QString MvBoxFont::family()
{
    static const bool isRegistered = [] {
        bool all = true;
        for (const char *file : {MV_TEST_DATA "/MvBox.ttf", MV_TEST_DATA "/MvBox-Bold.ttf"})
            all = QFontDatabase::addApplicationFont(QString::fromLocal8Bit(file)) >= 0 && all;
        return all;
    }();
    if (!isRegistered)
        qFatal("the box font cannot be loaded");
    return QStringLiteral("MvBox");
}

QFont MvBoxFont::font(int pixelSize, bool bold)
{
    QFont font(family());
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}
