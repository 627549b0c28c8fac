// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvTextOutline.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

class MvPdfFile;

/// Glyphs as fonts of the PDF itself: every glyph is drawn once per document, as its outline, and texts can be searched
/// and copied, since each code says which characters it stands for.
///
/// The glyphs are procedures (fonts of type 3) that take the colour of the text, and no cached bitmaps: so they come
/// out like the same outline drawn as a path.
class MvPdfFonts
{
public:
    /// Where a glyph is found.
    struct Place
    {
        int font = 0; // its object
        uchar code = 0;
        double width = 0.0; // in ems
    };

    /// The file outlives it.
    explicit MvPdfFonts(MvPdfFile &file)
        : m_file(file)
    {}

    /// Takes the glyph in if it is new; the same glyph for other characters has a code of its own, and so has one with
    /// so much more room behind it, in ems, that readers would see the end of a word there, or so much less that they
    /// would see two words one over the other.
    Place place(const MvTextOutline::Glyph &glyph, QStringView characters, double room);

    /// Whether the characters of every glyph are given; those of the second part of an accent, for one, are not.
    bool areLettersKnown() const { return m_areLettersKnown; }

    /// Writes the fonts. Nothing may be placed after.
    void finish();

private:
    struct Code
    {
        QByteArray name;
        QString characters;
        quint64 glyph = 0; // by face and index
        int width = 0;     // in units of the em
    };
    struct Font
    {
        int object = 0;
        int face = 0;
        int unitsPerEm = 0;
        QHash<int, Code> codes;
        QHash<QByteArray, int> names; // how often a name was wanted
    };
    struct Use
    {
        QString characters;
        double room = 0.0;
        Place place;
    };
    struct Shape
    {
        MvTextOutline::Glyph glyph; // in its largest size, where the outline is most exact
        QList<Use> uses;
        int width = -1;          // in units of the em
        QHash<int, int> objects; // of its procedures, by width, once written
    };

    Font &fontFor(const MvTextOutline::Glyph &glyph);
    uchar freeCode(const Font &font, QStringView characters) const;
    int shapeOf(const Code &code);
    void write(const Font &font);
    QByteArray boundsOf(const Font &font) const;
    int addCharacterMap(const Font &font);

    MvPdfFile &m_file;
    QList<Font> m_fonts;
    bool m_areLettersKnown = true;
    QHash<quint64, Shape> m_shapes; // by face and index
};
