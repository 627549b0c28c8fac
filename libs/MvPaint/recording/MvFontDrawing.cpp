// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvFontDrawing.h"

#include <QByteArray>
#include <QHash>
#include <QRawFont>

#include <cmath>

#include <hb.h>

namespace {

using Tables = QHash<hb_tag_t, QByteArray>;

constexpr hb_tag_t glyf = HB_TAG('g', 'l', 'y', 'f');
constexpr hb_tag_t cff = HB_TAG('C', 'F', 'F', ' ');

/// What outlines are made of, in both kinds of fonts. Where one stands is in its bearing, which need not be that of its
/// points.
Tables tablesOf(const QRawFont &font)
{
    Tables tables;
    for (const char *name : {"head", "maxp", "hhea", "hmtx", "loca", "glyf", "CFF "})
        tables.insert(hb_tag_from_string(name, -1), font.fontTable(name));
    return tables;
}

hb_blob_t *blobOf(const QByteArray &bytes)
{
    return hb_blob_create(bytes.constData(), static_cast<unsigned>(bytes.size()), HB_MEMORY_MODE_READONLY,
                          new QByteArray(bytes), [](void *kept) { delete static_cast<QByteArray *>(kept); });
}

hb_blob_t *referTo(hb_face_t *, hb_tag_t tag, void *tables)
{
    const QByteArray table = static_cast<const Tables *>(tables)->value(tag);
    return table.isEmpty() ? nullptr : blobOf(table);
}

constexpr double steps =
    64.0; // of a pixel, to which the text engine rounds as well: its measures agree with the outlines

/// Draws a glyph in the steps of a size; fonts count upwards.
struct Pen
{
    QPainterPath path;
    double stepsPerUnit;

    QPointF at(float x, float y) const
    {
        return {std::round(double(x) * stepsPerUnit) / steps, std::round(double(-y) * stepsPerUnit) / steps};
    }
};

Pen &pen(void *data)
{
    return *static_cast<Pen *>(data);
}

hb_draw_funcs_t *penFunctions()
{
    hb_draw_funcs_t *functions = hb_draw_funcs_create();
    hb_draw_funcs_set_move_to_func(
        functions,
        [](hb_draw_funcs_t *, void *data, hb_draw_state_t *, float x, float y, void *) {
            pen(data).path.moveTo(pen(data).at(x, y));
        },
        nullptr, nullptr);
    hb_draw_funcs_set_line_to_func(
        functions,
        [](hb_draw_funcs_t *, void *data, hb_draw_state_t *, float x, float y, void *) {
            pen(data).path.lineTo(pen(data).at(x, y));
        },
        nullptr, nullptr);
    hb_draw_funcs_set_quadratic_to_func(
        functions,
        [](hb_draw_funcs_t *, void *data, hb_draw_state_t *, float cx, float cy, float x, float y, void *) {
            pen(data).path.quadTo(pen(data).at(cx, cy), pen(data).at(x, y));
        },
        nullptr, nullptr);
    hb_draw_funcs_set_cubic_to_func(
        functions,
        [](hb_draw_funcs_t *, void *data, hb_draw_state_t *, float ax, float ay, float bx, float by, float x, float y,
           void *) { pen(data).path.cubicTo(pen(data).at(ax, ay), pen(data).at(bx, by), pen(data).at(x, y)); },
        nullptr, nullptr);
    hb_draw_funcs_set_close_path_func(
        functions, [](hb_draw_funcs_t *, void *data, hb_draw_state_t *, void *) { pen(data).path.closeSubpath(); },
        nullptr, nullptr);
    hb_draw_funcs_make_immutable(functions);
    return functions;
}

} // namespace

MvFontDrawing::MvFontDrawing(const QRawFont &font)
{
    auto tables = std::make_unique<Tables>(tablesOf(font)); // copies: half a megabyte each
    const bool hasOutlines = !tables->value(glyf).isEmpty() || !tables->value(cff).isEmpty();
    if (!hasOutlines || !font.fontTable("fvar").isEmpty())
        return;
    setFace(
        hb_face_create_for_tables(referTo, tables.release(), [](void *owned) { delete static_cast<Tables *>(owned); }));
}

MvFontDrawing::MvFontDrawing(const QByteArray &file)
{
    hb_blob_t *bytes = blobOf(file);
    setFace(hb_face_create(bytes, 0));
    hb_blob_destroy(bytes); // the face holds it
}

/// Takes it over.
void MvFontDrawing::setFace(hb_face_t *face)
{
    m_unitsPerEm = static_cast<int>(hb_face_get_upem(face));
    m_font.reset(hb_font_create(face));
    hb_face_destroy(face); // the font holds it
    hb_font_make_immutable(m_font.get());
}

QPainterPath MvFontDrawing::glyph(quint32 index, double em) const
{
    static hb_draw_funcs_t *const functions = penFunctions();
    Pen pen{{}, steps * em / m_unitsPerEm};
    hb_font_get_glyph_shape(m_font.get(), index, functions, &pen);
    return pen.path;
}

void MvFontDrawing::Release::operator()(hb_font_t *font) const
{
    hb_font_destroy(font);
}
