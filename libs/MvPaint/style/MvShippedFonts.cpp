// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvShippedFonts.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvLogger.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QResource>

using namespace Qt::StringLiterals;

namespace {

/// What is embedded is read where it stands, without a copy of it.
int registerFile(const QString &path)
{
    const QResource embedded(path);
    if (!embedded.isValid())
        return QFontDatabase::addApplicationFont(path);
    const bool isPlain = embedded.compressionAlgorithm() == QResource::NoCompression;
    return QFontDatabase::addApplicationFontFromData(
        isPlain ? QByteArray::fromRawData(reinterpret_cast<const char *>(embedded.data()), embedded.size())
                : embedded.uncompressedData());
}

bool registerFiles()
{
    // EB Garamond is drawn twice, for sizes around 8 and around 12 points; the folder has those that suit each other
    const QStringList files = MvDirectoryConfig::instance().resourceNames(u"fonts"_s, u"*.?tf"_s);
    for (const QString &file : files) {
        const QFileInfo font = MvDirectoryConfig::instance().resource(u"fonts/"_s + file);
        if (registerFile(font.filePath()) < 0)
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
