// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfTextPainter.h"

#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvPdfContent.h"
#include "MvProject/MvPdfFonts.h"
#include "MvProject/MvPdfSyntax.h"

#include <cmath>

namespace {

constexpr double tolerance = 0.6;      // units by which a glyph may stand beside its place
constexpr double thousandths = 1000.0; // of the size, in which distances between glyphs are given

/// Letters that are written from right to left come as they stand, and readers turn them round: but not within a
/// ligature, which is therefore a character of its own.
QString charactersOf(const MvTextOutline::Glyph &glyph, const QString &text)
{
    constexpr char16_t firstLigature = 0xfef5; // of lam and alef; each is followed by its form within words
    constexpr char16_t lastLigature = 0xfefb;
    QString characters = text.mid(glyph.firstCharacter, glyph.characters);
    if (characters.size() != 2 || characters[0] != QChar(0x0644))
        return characters;
    for (char16_t ligature = firstLigature; ligature <= lastLigature; ligature += 2) {
        if (const QString known(QChar{ligature}); known.normalized(QString::NormalizationForm_KC) == characters)
            return known;
    }
    return characters;
}

/// Whether the characters of the glyphs, one after the other, are the text.
bool isReadInOrder(const MvTextOutline &outline, const QString &text)
{
    int next = 0;
    for (const MvTextOutline::Glyph &glyph : outline.glyphs()) {
        if (glyph.characters == 0 || glyph.firstCharacter != next)
            return false;
        next += glyph.characters;
    }
    return next == text.size();
}

} // namespace

MvPdfTextPainter::MvPdfTextPainter(MvPdfContent &content, MvPdfFonts &fonts, const QTransform &transform)
    : m_content(content)
    , m_fonts(fonts)
    , m_transform(transform)
    , m_scale(std::hypot(transform.m11(), transform.m12()))
    , m_isPlain(transform.m11() > 0.0 && qFuzzyIsNull(transform.m12()) && qFuzzyIsNull(transform.m21()) &&
                qFuzzyCompare(transform.m11(), -transform.m22()))
{}

void MvPdfTextPainter::paint(const QList<MvPlacedOutline> &lines)
{
    m_lineStart = {};
    m_content.append("BT\n");
    for (const MvPlacedOutline &line : lines)
        paintLine(line);
    m_content.append("ET\n");
}

void MvPdfTextPainter::paintLine(const MvPlacedOutline &line)
{
    const QString text = line.outline.text();
    const bool isReadable = MvPrintableText::isTurned(text) || isReadInOrder(line.outline, text);
    if (!isReadable)
        m_content.append("/Span<</ActualText<FEFF" + MvPdfSyntax::utf16(text) + ">>>BDC\n");
    for (qsizetype next = 0; next < line.outline.glyphs().size();)
        next = paintRun(line, next);
    if (!isReadable)
        m_content.append("EMC\n");
}

void MvPdfTextPainter::moveTo(const QPointF &point)
{
    QByteArray commands;
    const QPointF start(std::round(point.x()), std::round(point.y()));
    if (m_isPlain) {
        MvPdfSyntax::append(commands, start - m_lineStart);
        commands += "Td\n";
        m_lineStart = start;
    } else {
        const double factor = m_scale > 0.0 ? 1.0 / m_scale : 0.0;
        for (const double value : {m_transform.m11(), m_transform.m12(), -m_transform.m21(), -m_transform.m22()}) {
            MvPdfSyntax::append(commands, value * factor, 6);
            commands += ' ';
        }
        MvPdfSyntax::append(commands, start);
        commands += "Tm\n";
    }
    m_content.append(commands);
}

qsizetype MvPdfTextPainter::paintRun(const MvPlacedOutline &line, qsizetype first)
{
    constexpr double large = 1500.0; // units; a thousandth of such a font is seen
    const QList<Glyph> &glyphs = line.outline.glyphs();
    const QString text = line.outline.text();
    const Glyph &start = glyphs[first];
    const double size = start.em * m_scale;
    const int decimals = size > large ? 1 : 0;
    const auto isOfRun = [&start](const Glyph &glyph) {
        return glyph.em == start.em && glyph.origin.y() == start.origin.y();
    };
    const auto placeAt = [&](qsizetype at) {
        const Glyph &glyph = glyphs[at];
        const bool isLast = at + 1 == glyphs.size() || !isOfRun(glyphs[at + 1]);
        const double room = isLast ? 0.0 : glyphs[at + 1].origin.x() - glyph.origin.x() - glyph.advance;
        return m_fonts.place(glyph, charactersOf(glyph, text), room / glyph.em);
    };
    const int font = placeAt(first).font;
    m_content.setFont(font, size);
    moveTo(m_transform.map(line.baseline + start.origin));

    QByteArray commands = "[";
    QByteArray codes;
    double reached = 0.0; // along the baseline, in units
    qsizetype next = first;
    for (; next < glyphs.size(); ++next) {
        const Glyph &glyph = glyphs[next];
        const MvPdfFonts::Place place = placeAt(next);
        if (place.font != font || !isOfRun(glyph))
            break;
        const double gap = (glyph.origin.x() - start.origin.x()) * m_scale - reached;
        if (std::abs(gap) > tolerance) {
            const QByteArray back = MvPdfSyntax::number(-gap / size * thousandths, decimals);
            commands += MvPdfSyntax::string(codes) + back;
            codes.clear();
            reached -= back.toDouble() / thousandths * size;
        }
        codes += char(place.code);
        reached += place.width * size;
    }
    m_content.append(commands + MvPdfSyntax::string(codes) + "]TJ\n");
    return next;
}
