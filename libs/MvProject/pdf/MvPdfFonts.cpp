// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfFonts.h"

#include "MvProject/MvPdfContent.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfSyntax.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

constexpr int measureCode = 31;
constexpr int firstCode = 32;
constexpr int codeCount = 256 - firstCode;

quint64 keyOf(const MvTextOutline::Glyph &glyph)
{
    return quint64(glyph.face) << 32 | glyph.index;
}

/// Its outline in units of the em, upwards.
QPainterPath inUnits(const MvTextOutline::Glyph &glyph)
{
    const double scale = glyph.unitsPerEm / glyph.em;
    return QTransform::fromScale(scale, -scale).map(glyph.path);
}

/// In ems: what readers would take for a gap or an overlap; nothing where they would not.
double seenRoom(double room)
{
    constexpr double seen = 0.08; // they begin at a tenth
    constexpr double largest = 2.0;
    constexpr double step = 0.02; // so that few widths are needed
    return std::abs(room) >= seen && std::abs(room) <= largest ? std::round(room / step) * step : 0.0;
}

/// The name that readers know: "A", "uni00C4". Not "m": they measure by it (see write()).
QByteArray nameOf(QStringView characters)
{
    if (characters.size() == 1 && QChar::isLetter(characters[0].unicode()) && characters[0].unicode() < 0x80 &&
        characters[0] != u'm')
        return QByteArray(1, characters[0].toLatin1());
    return "uni" + (characters.isEmpty() ? QByteArray("200B") : MvPdfSyntax::utf16(characters));
}

QByteArray hex(int code)
{
    return '<' + QByteArray::number(code, 16).rightJustified(2, '0') + '>';
}

QList<int> sortedCodes(const auto &codes)
{
    QList<int> sorted = codes.keys();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

} // namespace

MvPdfFonts::Place MvPdfFonts::place(const MvTextOutline::Glyph &glyph, QStringView characters, double room)
{
    Shape &shape = m_shapes[keyOf(glyph)];
    if (glyph.em > shape.glyph.em)
        shape.glyph = glyph;
    if (shape.width < 0)
        shape.width = int(std::lround(glyph.advance / glyph.em * glyph.unitsPerEm));
    const double behind = seenRoom(room);
    for (const Use &use : std::as_const(shape.uses)) {
        if (use.characters == characters && use.room == behind)
            return use.place;
    }
    Font &font = fontFor(glyph);
    const uchar number = freeCode(font, characters);
    Code code;
    code.characters = characters.toString();
    m_areLettersKnown = m_areLettersKnown && !characters.isEmpty();
    code.name = nameOf(characters);
    if (const int again = font.names[code.name]++; again > 0)
        code.name += '.' + QByteArray::number(again);
    code.glyph = keyOf(glyph);
    code.width = shape.width + int(std::lround(behind * glyph.unitsPerEm));
    font.codes.insert(number, code);
    const Place place{font.object, number, double(code.width) / glyph.unitsPerEm};
    shape.uses.append({code.characters, behind, place});
    return place;
}

MvPdfFonts::Font &MvPdfFonts::fontFor(const MvTextOutline::Glyph &glyph)
{
    for (Font &font : m_fonts) {
        if (font.face == glyph.face && font.codes.size() < codeCount)
            return font;
    }
    Font font;
    font.object = m_file.reserve();
    font.face = glyph.face;
    font.unitsPerEm = glyph.unitsPerEm;
    m_fonts.append(font);
    return m_fonts.last();
}

/// That of the character itself where it is free, so that also programs without interest in maps read plain letters.
uchar MvPdfFonts::freeCode(const Font &font, QStringView characters) const
{
    if (characters.size() == 1) {
        const char16_t own = characters[0].unicode();
        if (own >= firstCode && own < 0x7f && !font.codes.contains(own))
            return uchar(own);
    }
    int code = 255;
    while (font.codes.contains(code))
        --code;
    return uchar(code);
}

int MvPdfFonts::shapeOf(const Code &code)
{
    const Shape &shape = m_shapes[code.glyph];
    int &object = m_shapes[code.glyph].objects[code.width];
    if (object == 0) {
        MvPdfContent content;
        content.addPath(inUnits(shape.glyph), MvPdfContent::Subpaths::AsTheyAre);
        object = m_file.addStream({}, QByteArray::number(code.width) + " 0 d0\n" + content.bytes() +
                                          (shape.glyph.path.isEmpty() ? "" : "f"));
    }
    return object;
}

QByteArray MvPdfFonts::boundsOf(const Font &font) const
{
    QRectF bounds;
    for (const Code &code : font.codes)
        bounds |= inUnits(m_shapes.value(code.glyph).glyph).controlPointRect();
    QByteArray numbers;
    MvPdfSyntax::append(numbers, QPointF(std::floor(bounds.left()), std::floor(bounds.top())));
    MvPdfSyntax::append(numbers, QPointF(std::ceil(bounds.right()), std::ceil(bounds.bottom())));
    return numbers;
}

void MvPdfFonts::finish()
{
    for (const Font &font : std::as_const(m_fonts))
        write(font);
    m_fonts.clear();
}

void MvPdfFonts::write(const Font &font)
{
    const QList<int> codes = sortedCodes(font.codes);
    QByteArray shapes;
    // some readers take the em for as large as an "m" usually goes with, and look for gaps between words by that
    QByteArray names = QByteArray::number(measureCode) + "/m";
    QByteArray widths = QByteArray::number(std::lround(0.6 * font.unitsPerEm)) + ' ';
    int expected = measureCode + 1;
    for (const int number : codes) {
        const Code code = font.codes.value(number);
        shapes += '/' + code.name + ' ' + MvPdfSyntax::reference(shapeOf(code));
        if (number != expected)
            names += ' ' + QByteArray::number(number);
        names += '/' + code.name;
        expected = number + 1;
    }
    for (int number = measureCode + 1; number <= codes.last(); ++number)
        widths += QByteArray::number(font.codes.value(number).width) + ' ';
    const QByteArray scale = MvPdfSyntax::number(1.0 / font.unitsPerEm, 10);
    m_file.set(
        font.object,
        "<</Type/Font/Subtype/Type3/FontBBox[" + boundsOf(font) + "]/FontMatrix[" + scale + " 0 0 " + scale +
            " 0 0]/CharProcs<<" + shapes + ">>/Encoding<</Type/Encoding/Differences[" + names + "]>>/FirstChar " +
            QByteArray::number(measureCode) + "/LastChar " + QByteArray::number(codes.last()) + "/Widths[" + widths +
            "]/Resources<<>>/FontDescriptor " +
            MvPdfSyntax::reference(m_file.addOnce("<</Type/FontDescriptor/FontName/Kalender/Flags 4/ItalicAngle 0>>")) +
            "/ToUnicode " + MvPdfSyntax::reference(addCharacterMap(font)) + ">>");
}

/// Which characters the codes stand for.
int MvPdfFonts::addCharacterMap(const Font &font)
{
    constexpr qsizetype mostInBlock = 100; // readers need not take more
    QByteArray map = "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n/CIDSystemInfo <</Registry "
                     "(Adobe)/Ordering (UCS)/Supplement 0>> def\n/CMapName /Adobe-Identity-UCS def\n/CMapType 2 "
                     "def\n1 begincodespacerange\n<00><ff>\nendcodespacerange\n";
    QList<int> codes = sortedCodes(font.codes);
    codes.removeIf([&](int code) { return font.codes.value(code).characters.isEmpty(); });
    for (qsizetype first = 0; first < codes.size(); first += mostInBlock) {
        const QList<int> block = codes.sliced(first, std::min(mostInBlock, codes.size() - first));
        map += QByteArray::number(block.size()) + " beginbfchar\n";
        for (const int code : block)
            map += hex(code) + '<' + MvPdfSyntax::utf16(font.codes.value(code).characters) + ">\n";
        map += "endbfchar\n";
    }
    map += "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend";
    return m_file.addStream({}, map);
}
