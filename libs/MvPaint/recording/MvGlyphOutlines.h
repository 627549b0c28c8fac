// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvFontDrawing.h"

#include <QCache>
#include <QFont>
#include <QHash>
#include <QMutex>
#include <QPainterPath>
#include <QString>

#include <memory>
#include <optional>

class QRawFont;

/// Faces by number, and the outlines of their glyphs, each taken from its font once per size. Bounded by the number of
/// path elements. Any thread.
class MvGlyphOutlines
{
public:
    static MvGlyphOutlines &instance();

    /// A number that stands for the font in any size, until forget().
    int faceOf(const QRawFont &font);

    /// The outline of a glyph of that face, in the font's size. The font has outlines (not MvGlyphPictures).
    QPainterPath outline(int face, const QRawFont &font, quint32 index);

    /// Forgets all, for when fonts have changed. Numbers are not given twice: a name may mean another font then.
    void forget();

private:
    /// A font in any size.
    struct Face
    {
        QString family;
        QString style;
        int weight = 0;
        QFont::Style slant = QFont::StyleNormal;

        bool operator==(const Face &) const = default;
        friend size_t qHash(const Face &face, size_t seed)
        {
            return qHashMulti(seed, face.family, face.style, face.weight, int(face.slant));
        }
    };

    struct Key
    {
        int face;
        double em;
        quint32 index;

        bool operator==(const Key &) const = default;
        friend size_t qHash(const Key &key, size_t seed) { return qHashMulti(seed, key.face, key.em, key.index); }
    };

    using Drawing = std::shared_ptr<const MvFontDrawing>;

    std::optional<Drawing> known(int face);
    QPainterPath drawn(int face, const QRawFont &font, quint32 index);
    QPainterPath compared(int face, const QRawFont &font, quint32 index);

    static constexpr int mostElements = 100'000; // some 3 MB
    static constexpr int entryCost = 8;

    QMutex m_mutex;
    QHash<Face, int> m_faces;
    int m_lastFace = 0;
    QHash<int, Drawing> m_drawings; // of faces that were compared; null where the text engine draws
    QCache<Key, QPainterPath> m_outlines{mostElements};
};
