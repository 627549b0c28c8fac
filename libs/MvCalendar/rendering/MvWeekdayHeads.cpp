// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvWeekdayHeads.h"

#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QPainter>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace {

constexpr int daysPerWeek = 7;
constexpr double gapBetweenNames = 0.3; // of the size of type
constexpr double gapBetweenLetters = 0.15;
constexpr double mostShrunkNames = 0.85; // below that letters read better
constexpr double hair = 1.0;             // that ink keeps from the edges beside it, half of it above and below

/// The days whose heads may have the type.
bool mayHave(const MvCalendarCellType &type, int day)
{
    return type == CALENDAR_CELL_TYPE_HEAD_HOLIDAY || type == CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION ||
           type == MvCalendariumRenderer::headCellTypeWeekDay(day);
}

double gap(MvWeekdayHeads::Form form)
{
    return form == MvWeekdayHeads::Form::Letter ? gapBetweenLetters : gapBetweenNames;
}

/// The padding that a form of names keeps: that of the edge at which the column's texts are aligned.
double keptPadding(const MvCalendariumRenderer &renderer, const MvCalendarCellType &type, MvWeekdayHeads::Form form)
{
    if (form == MvWeekdayHeads::Form::Letter)
        return 0.0;
    const QMarginsF padding = renderer.padding(type);
    switch (int(renderer.textAlignment(type) & Qt::AlignHorizontal_Mask)) {
    case Qt::AlignRight:
        return std::max(0.0, padding.right());
    case Qt::AlignHCenter:
        return 0.0;
    default:
        return std::max(0.0, padding.left());
    }
}

QFont sized(QFont font, int pixelSize)
{
    if (font.letterSpacingType() == QFont::AbsoluteSpacing)
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * pixelSize / font.pixelSize());
    font.setPixelSize(pixelSize);
    return font;
}

/// The scale at which the first of the types meets its floor.
double floorScale(const MvCalendariumRenderer &renderer, const QList<MvCalendarCellType> &types)
{
    double scale = 0.0;
    for (const MvCalendarCellType &type : types)
        scale = std::max(scale, std::ceil(renderer.smallestPixelSize(type)) / renderer.font(type).pixelSize());
    return std::min(1.0, scale);
}

/// The first letters behind what all texts begin with.
QStringList letters(const QStringList &texts)
{
    const auto isCommon = [&texts](qsizetype index) {
        return std::all_of(texts.cbegin(), texts.cend(), [&](const QString &text) {
            return index + 1 < text.size() && text.at(index) == texts.constFirst().at(index);
        });
    };
    qsizetype start = 0;
    while (isCommon(start))
        ++start;
    QStringList first;
    for (const QString &text : texts) {
        const QString rest = text.mid(start);
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, rest);
        finder.toNextBoundary();
        first.append(rest.first(std::max<qsizetype>(0, finder.position())));
    }
    return first;
}

} // namespace

MvWeekdayHeads::MvWeekdayHeads(const MvCalendariumRenderer &renderer, Form longest, const QSizeF &cell,
                               bool withSpecialDays)
    : m_renderer(renderer)
    , m_types(renderer.dayHeadCellTypes(withSpecialDays))
    , m_cell(cell)
{
    const double smallest = floorScale(renderer, m_types);
    if (longest == Form::Long && choose(Form::Long, 1.0))
        return;
    if (!choose(Form::Short, std::max(mostShrunkNames, smallest)))
        choose(Form::Letter, smallest);
}

QStringList MvWeekdayHeads::names(const MvCalendariumRenderer &renderer, Form form)
{
    QStringList names;
    for (int day = 1; form != Form::None && day <= daysPerWeek; ++day)
        names.append(renderer.dayName(day, form != Form::Long));
    return form == Form::Letter ? letters(names) : names;
}

double MvWeekdayHeads::leastWidth(const MvCalendariumRenderer &renderer, Form form, bool withSpecialDays, bool atFloor)
{
    const QStringList texts = names(renderer, form);
    const QList<MvCalendarCellType> types = renderer.dayHeadCellTypes(withSpecialDays);
    const double scale = atFloor ? floorScale(renderer, types) : 1.0;
    double least = 0.0;
    for (const MvCalendarCellType &type : types) {
        const QFont font = renderer.font(type);
        for (int day = 1; day <= texts.size(); ++day) {
            if (!mayHave(type, day))
                continue;
            const double text = MvTextOutlineCache::instance().advance(font, texts.at(day - 1));
            const double wanted = scale * (text + gap(form) * font.pixelSize());
            least = std::max(least, keptPadding(renderer, type, form) + wanted + 2.0 * hair);
        }
    }
    return std::ceil(least);
}

// ---- choosing

bool MvWeekdayHeads::choose(Form form, double smallestScale)
{
    QRectF ink;
    const double scale = scaleFor(form, &ink);
    if (scale < smallestScale)
        return false;
    m_form = form;
    m_names = names(m_renderer, form);
    m_scale = scale;
    m_ink = ink;
    return true;
}

double MvWeekdayHeads::scaleFor(Form form, QRectF *ink) const
{
    const QStringList texts = names(m_renderer, form);
    double scale = 1.0;
    for (const MvCalendarCellType &type : m_types) {
        const QFont font = m_renderer.font(type);
        const double width = m_cell.width() - keptPadding(m_renderer, type, form) - 2.0 * hair;
        for (int day = 1; day <= daysPerWeek; ++day) {
            if (!mayHave(type, day))
                continue;
            const MvTextOutline outline = MvTextOutlineCache::instance().outline(font, texts.at(day - 1));
            scale = std::min(scale, width / (outline.advance() + gap(form) * font.pixelSize()));
            *ink |= outline.bounds();
        }
    }
    if (ink->height() > 0.0)
        scale = std::min(scale, (m_cell.height() - hair) / ink->height());
    return std::max(0.0, scale);
}

int MvWeekdayHeads::pixelSize(const MvCalendarCellType &type) const
{
    constexpr double rounding = 1e-6;
    return static_cast<int>(m_renderer.font(type).pixelSize() * m_scale + rounding);
}

// ---- drawing

void MvWeekdayHeads::draw(QPainter &painter, const QRectF &cell, const MvCalendarCellTypeConfig &config, int day,
                          bool even) const
{
    const QColor color = m_renderer.fontColor(config, even);
    if (text(day).isEmpty() || !m_renderer.isOpaqueColor(color))
        return;
    const MvCalendarCellType &type = config.inscriptionConfig();
    const int size = pixelSize(type);
    const MvTextFitter asChosen(sized(m_renderer.font(type), size), size, {});
    MvCalendariumCellLine line(asChosen, cell.size(), text(day));
    line.align(cell.marginsRemoved(m_renderer.padding(type)), int(m_renderer.textAlignment(type)));
    const double lowest = cell.bottom() - hair / 2.0 - m_ink.bottom() * m_scale;
    const double highest = cell.top() + hair / 2.0 - m_ink.top() * m_scale;
    line.setBaseline(std::max(std::min(line.baseline(), lowest), highest));
    line.keepInside(cell.adjusted(hair, 0.0, -hair, 0.0));
    line.draw(painter, color);
}
