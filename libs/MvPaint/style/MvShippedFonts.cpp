// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvShippedFonts.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvLogger.h"

#include <QFontDatabase>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

// EB Garamond is drawn twice, for sizes around 8 and around 12 points; these are the drawings that suit each other
constexpr const char *files[] = {"Lato-Light.ttf",       "Lato-Regular.ttf",         "Lato-Italic.ttf",
                                 "Lato-Bold.ttf",        "EBGaramond08-Regular.otf", "EBGaramond12-Italic.otf",
                                 "EBGaramond12-Bold.otf"};

bool registerFiles()
{
    for (const char *file : files) {
        const QFileInfo font = MvDirectoryConfig::instance().resource("fonts/"_L1 + QLatin1StringView(file));
        if (QFontDatabase::addApplicationFont(font.filePath()) < 0)
            MvLogger::legacyLog(u"Fonts ACTION:registerFont ERROR:%1"_s.arg(font.filePath()));
    }
    return true;
}

} // namespace

void MvShippedFonts::registerAll()
{
    if (qobject_cast<const QGuiApplication *>(QCoreApplication::instance()))
        static const bool areRegistered [[maybe_unused]] = registerFiles();
}
