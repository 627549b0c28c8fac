// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvGlyphCoverage.h"

#include "MvCore/MvStringHelper.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvPrintableText.h"

#include <QGlyphRun>
#include <QHash>
#include <QMutex>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr char32_t alwaysThere = 0x0100; // Latin-1: in every font that anybody prints with
constexpr qsizetype mostKnown = 50'000;

/// Whether it needs a glyph of its own. Marks join that of their letter.
bool isSeen(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    const bool isMark = category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
                        category == QChar::Mark_Enclosing;
    return !isMark && MvStringHelper::isVisible(c);
}

bool hasGlyph(const QFont &font, const QString &character)
{
    QTextLayout layout(character, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::none_of(runs.cbegin(), runs.cend(), [](const QGlyphRun &run) {
        const bool hasNoFont = run.rawFont().pixelSize() <= 0.0; // for its script
        return hasNoFont || run.glyphIndexes().contains(0);
    });
}

/// What is known of the characters of each family.
class Known
{
public:
    Known()
    {
        MvFontSupply::whenFontsChange([this] { clear(); });
    }

    bool isShown(const QFont &font, char32_t c)
    {
        const auto key = qMakePair(font.family(), c);
        const QMutexLocker lock(&m_mutex);
        if (const auto known = m_shown.constFind(key); known != m_shown.cend())
            return *known;
        if (m_shown.size() >= mostKnown)
            m_shown.clear();
        return *m_shown.insert(key, hasGlyph(font, QString::fromUcs4(&c, 1)));
    }

private:
    void clear()
    {
        const QMutexLocker lock(&m_mutex);
        m_shown.clear();
    }

    QMutex m_mutex;
    QHash<std::pair<QString, char32_t>, bool> m_shown;
};

} // namespace

QString MvGlyphCoverage::missingCharacters(const QFont &font, const QString &text)
{
    static Known known;
    MvFontSupply::provide(font, text);
    QString missing;
    const QList<uint> characters = MvPrintableText::shapeable(text).toUcs4();
    for (const char32_t c : characters) {
        if (c < alwaysThere || !isSeen(c) || known.isShown(font, c))
            continue;
        if (const QString character = QString::fromUcs4(&c, 1); !missing.contains(character))
            missing.append(character);
    }
    return missing;
}
