// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvFontTester.h"

#include "MvModelBase/MvFontSupply.h"

#include <QFont>
#include <QFontDatabase>
#include <QRawFont>

#include <algorithm>

using namespace Qt::StringLiterals;

template class MvSingleton<MvFontTester>;

namespace {

/// Symbol fonts often claim Latin letters and have pictures in their places. In a text font a letter with a dieresis
/// is as wide as the letter.
bool hasLetters(const QString &family)
{
    const QString plain = u"aouAOU"_s;
    const QString dotted = u"äöüÄÖÜ"_s;
    const QRawFont font = QRawFont::fromFont(QFont(family, 72));
    const QList<quint32> glyphs = font.glyphIndexesForString(plain + dotted);
    const QList<QPointF> widths = font.advancesForGlyphIndexes(glyphs);
    if (widths.size() != plain.size() + dotted.size() || glyphs.contains(0u))
        return false;
    const double tolerance = font.pixelSize() / 100.0;
    for (qsizetype letter = 0; letter < plain.size(); ++letter) {
        if (std::abs(widths[letter].x() - widths[plain.size() + letter].x()) > tolerance)
            return false;
    }
    return true;
}

} // namespace

void MvFontTester::updateFonts()
{
    m_goodFonts.clear();
    MvFontSupply::provideAll();
    const QStringList families = QFontDatabase::families();
    std::copy_if(families.cbegin(), families.cend(), std::back_inserter(m_goodFonts), isGoodFont);
    m_goodFonts.sort(Qt::CaseInsensitive);
    m_updateWasRun = true;
}

bool MvFontTester::isGoodFont(const QString &family)
{
    if (QFontDatabase::isPrivateFamily(family) || !QFontDatabase::isSmoothlyScalable(family))
        return false;
    const QList<QFontDatabase::WritingSystem> systems = QFontDatabase::writingSystems(family);
    if (!systems.contains(QFontDatabase::Latin))
        return false;
    return !systems.contains(QFontDatabase::Symbol) || hasLetters(family);
}
