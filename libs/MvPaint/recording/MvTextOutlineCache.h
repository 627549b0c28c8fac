// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvPaint/MvTextOutline.h"

#include <QCache>
#include <QMutex>

class MvTextOutlineCache;
extern template class MVPAINT_EXPORT MvSingleton<MvTextOutlineCache>;

/// Outlines of texts by font and text, so that a text which stands on many pages is shaped once.
///
/// Choosing and placing the glyphs of a text takes some fifty microseconds, drawing its outline a fraction of one, and
/// a calendar repeats a few hundred texts on all its pages. Colour and place are no part of the key. Outlines also make
/// pages independent of the fonts of whoever prints them.
///
/// Bounded by the number of path elements it holds (an element takes about 100 bytes with everything that hangs on
/// it); the outline unused for longest goes first. Safe to use from several threads. The instance forgets everything
/// when the application's fonts change.
class MVPAINT_EXPORT MvTextOutlineCache : public MvSingleton<MvTextOutlineCache>
{
public:
    static constexpr int defaultMaximumElements = 250'000;

    /// Longer texts (in code units) are shaped whenever they are asked for: one of them would push out a page's worth
    /// of others.
    static constexpr int longestKept = 400;

    explicit MvTextOutlineCache(int maximumElements = defaultMaximumElements);

    /// The outline of the text, shaped now if it is not at hand. Two fonts in points of different resolution are
    /// two fonts.
    MvTextOutline outline(const QFont &font, const QString &text);

    /// The outline's advance, measured without shaping the outline: fitting and breaking tries many texts that are
    /// never drawn. The last few thousand are kept.
    double advance(const QFont &font, const QString &text);

    /// Drops outlines until the limit holds; 0 keeps none.
    void setMaximumElements(int elements);
    int maximumElements() const;

    int elementCount() const;
    int outlineCount() const;
    void clear();

    void setupInstance() override;

private:
    struct Key
    {
        QFont font;
        int dpi; // 0 for a font in pixels
        QString text;

        bool operator==(const Key &other) const { return dpi == other.dpi && text == other.text && font == other.font; }
        friend size_t qHash(const Key &key, size_t seed)
        {
            // the families are left to operator==: hashing their names would cost more than the rare collision
            return qHashMulti(seed, key.text, key.dpi, key.font.pixelSize(), key.font.pointSizeF(),
                              int(key.font.weight()), key.font.italic());
        }
    };

    static constexpr int maximumAdvances = 20'000;

    static Key key(const QFont &font, const QString &text);

    mutable QMutex m_mutex;
    QCache<Key, MvTextOutline> m_outlines;
    QCache<Key, double> m_advances{maximumAdvances};
};
