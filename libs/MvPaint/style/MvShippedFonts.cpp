// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvShippedFonts.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvLogger.h"

#include <QFont>
#include <QFontDatabase>
#include <QResource>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct ShippedFace
{
    QLatin1StringView file;
    QLatin1StringView family;
    QFont::Weight weight;
    bool isItalic;
};

// EB Garamond is drawn twice, for sizes around 8 and around 12 points; the folder has those that suit each other, and
// the bold one of another release: it has all letters
constexpr std::array<ShippedFace, 20> faces{{
    {"EBGaramond-Bold.otf"_L1, "EB Garamond"_L1, QFont::Bold, false},
    {"EBGaramond08-Regular.otf"_L1, "EB Garamond"_L1, QFont::Normal, false},
    {"EBGaramond12-Italic.otf"_L1, "EB Garamond"_L1, QFont::Normal, true},
    {"GFSDidot.otf"_L1, "GFS Didot"_L1, QFont::Normal, false},
    {"GFSDidotItalic.otf"_L1, "GFS Didot"_L1, QFont::Normal, true},
    {"Inter-Bold.otf"_L1, "Inter"_L1, QFont::Bold, false},
    {"Inter-Light.otf"_L1, "Inter"_L1, QFont::Light, false},
    {"Inter-Regular.otf"_L1, "Inter"_L1, QFont::Normal, false},
    {"Lato-Bold.ttf"_L1, "Lato"_L1, QFont::Bold, false},
    {"Lato-Italic.ttf"_L1, "Lato"_L1, QFont::Normal, true},
    {"Lato-Light.ttf"_L1, "Lato"_L1, QFont::Light, false},
    {"Lato-Regular.ttf"_L1, "Lato"_L1, QFont::Normal, false},
    {"LeagueSpartan-Bold.otf"_L1, "League Spartan"_L1, QFont::Bold, false},
    {"LeagueSpartan-Regular.otf"_L1, "League Spartan"_L1, QFont::Normal, false},
    {"Quicksand-Bold.ttf"_L1, "Quicksand"_L1, QFont::Bold, false},
    {"Quicksand-Regular.ttf"_L1, "Quicksand"_L1, QFont::Normal, false},
    {"Vollkorn-Bold.ttf"_L1, "Vollkorn"_L1, QFont::Bold, false},
    {"Vollkorn-Regular.ttf"_L1, "Vollkorn"_L1, QFont::Normal, false},
    {"texgyrepagella-italic.otf"_L1, "TeX Gyre Pagella"_L1, QFont::Normal, true},
    {"texgyrepagella-regular.otf"_L1, "TeX Gyre Pagella"_L1, QFont::Normal, false},
}};

/// What is embedded is read where it stands, without a copy of it.
QByteArray bytesOf(const QResource &embedded)
{
    return embedded.compressionAlgorithm() == QResource::NoCompression
               ? QByteArray::fromRawData(reinterpret_cast<const char *>(embedded.data()), embedded.size())
               : embedded.uncompressedData();
}

QString pathOf(const QString &file)
{
    return MvDirectoryConfig::instance().resource(u"fonts/"_s + file).filePath();
}

int addToQt(const QString &path)
{
    const QResource embedded(path);
    return embedded.isValid() ? QFontDatabase::addApplicationFontFromData(bytesOf(embedded))
                              : QFontDatabase::addApplicationFont(path);
}

struct Registered
{
    QString path;
    int handle; // negative: cannot be used
};
QList<Registered> registered;

/// Whether the font can be used.
bool registerFile(const QString &path)
{
    const auto known = std::find_if(registered.cbegin(), registered.cend(),
                                    [&path](const Registered &each) { return each.path == path; });
    if (known != registered.cend())
        return known->handle >= 0;
    registered.append({path, addToQt(path)});
    if (registered.constLast().handle >= 0)
        return true;
    MvLogger::legacyLog(u"Fonts ACTION:registerFont ERROR:%1"_s.arg(path));
    return false;
}

} // namespace

void MvShippedFonts::registerAll()
{
    const QStringList files = MvDirectoryConfig::instance().resourceNames(u"fonts"_s, u"*.?tf"_s);
    for (const QString &file : files)
        registerFile(pathOf(file));
}

QByteArray MvShippedFonts::registerFace(const QFont &font)
{
    const auto face = std::find_if(faces.cbegin(), faces.cend(), [&font](const ShippedFace &each) {
        return each.family == font.family() && each.weight == font.weight() &&
               each.isItalic == (font.style() == QFont::StyleItalic);
    });
    if (face == faces.cend())
        return {};
    const QString path = pathOf(face->file);
    const QResource embedded(path);
    return embedded.isValid() && registerFile(path) ? bytesOf(embedded) : QByteArray();
}

/// A font that goes is the sign for it. It comes back at once: Qt gives its place to the next that comes, and whoever
/// still draws with the one would be given the other.
void MvShippedFonts::refreshOthers()
{
    const auto usable =
        std::find_if(registered.begin(), registered.end(), [](const Registered &each) { return each.handle >= 0; });
    if (usable == registered.end() || !QFontDatabase::removeApplicationFont(usable->handle))
        return;
    usable->handle = addToQt(usable->path);
}

bool MvShippedFonts::hasFamily(const QString &family)
{
    return std::any_of(faces.cbegin(), faces.cend(),
                       [&family](const ShippedFace &each) { return each.family == family; });
}
