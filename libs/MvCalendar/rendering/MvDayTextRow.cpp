// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvDayTextRow.h"

#include "MvCalendar/MvColorRuns.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double overhangOfLetters = 0.1; // of their size, beyond the advance of a line
constexpr double leastMargin = 1.0;
const QString separator = u", "_s;
const QString ellipsis = u"…"_s;

} // namespace

MvDayTextRow::MvDayTextRow(const MvTextFitter &fitter, const MvDayRow &row, const QStringList &texts,
                           std::optional<double> baseline)
    : m_fitter(fitter)
    , m_row(row)
    , m_texts(texts)
{
    const double left = row.inner.left();
    const double right = row.cell.right() - leastMargin - overhangOfLetters * fitter.font().pixelSize();
    QRectF widest(QPointF(left, row.cell.top() + leastMargin),
                  QPointF(std::max(left, right), row.cell.bottom() - leastMargin));
    m_set = fitted(row.inner, widest);
    if (m_set.text.isCut && row.leastLeft < left) {
        const QRectF whole = widest.adjusted(row.leastLeft - left, 0.0, 0.0, 0.0);
        if (const Set other = fitted(whole, whole); !other.text.isCut) {
            m_set = other;
            widest = whole;
        }
    }
    place(widest, baseline);
}

/// By line height, or further apart where letters would meet the accents below them. Tight: as near as letters allow.
MvDayTextRow::Set MvDayTextRow::stacked(const MvFittedText &text, const QRectF &widest, bool isTight) const
{
    const MvTextFitter unchanged(text.font, text.font.pixelSize() + 1.0, MvHyphenator());
    Set set{text, {}, {}};
    const double height = QFontMetricsF(text.font).height();
    double pitch = isTight ? 0.0 : height;
    for (const QString &words : text.lines) {
        MvCalendariumCellLine line(unchanged, {2.0 * widest.width(), 2.0 * height}, words);
        line.align(widest, Qt::AlignLeft | Qt::AlignTop);
        line.setBaseline(0.0);
        if (!set.lines.isEmpty())
            pitch = std::max(pitch, set.lines.constLast().ink().bottom() - line.ink().top() + leastMargin);
        set.lines.append(line);
    }
    double y = -pitch * double(set.lines.size() - 1);
    for (MvCalendariumCellLine &line : set.lines) {
        line.setBaseline(y);
        set.ink |= line.ink();
        y += pitch;
    }
    return set;
}

/// By what is seen of the lines instead of their height: in the largest type that does, or as much as there is room
/// for.
MvDayTextRow::Set MvDayTextRow::fittedByInk(const QStringList &texts, const QRectF &widest, qsizetype mostLines,
                                            bool isTight) const
{
    const QList<QFont> sizes = m_fitter.sizes();
    Set best{{sizes.constLast(), {}, true, texts}, {}, {}};
    for (const QFont &font : sizes) {
        const double line = QFontMetricsF(font).height();
        const MvTextFitter fixed(font, font.pixelSize() + 1.0, m_fitter.hyphenator());
        for (auto count = mostLines; count > 0; --count) {
            const MvFittedText text = fixed.fitRunning({widest.width(), line * double(count)}, texts, separator);
            const Set set = stacked(text, widest, isTight);
            if (set.lines.isEmpty() || set.ink.height() > height())
                continue;
            if (!text.isCut)
                return set;
            best = set;
            break;
        }
    }
    return best;
}

/// In the room less its paddings, or else in the widest room.
MvDayTextRow::Set MvDayTextRow::fitted(const QRectF &inner, const QRectF &widest) const
{
    MvFittedText text = m_fitter.fitRunning(inner.size(), m_texts, separator);
    if (text.isCut || text.font != m_fitter.font()) // paddings are used up before letters become smaller
        text = m_fitter.fitRunning(widest.size(), m_texts, separator);
    const Set set = stacked(text, widest);
    if (!set.lines.isEmpty() && !text.isCut && set.ink.height() <= height())
        return set;
    const auto most = std::max<qsizetype>(1, text.lines.size());
    const Set loose = fittedByInk(m_texts, widest, most, false);
    if (!loose.text.isCut)
        return loose;
    const Set tight = fittedByInk(m_texts, widest, most + 1, true);
    const Set &best = tight.text.cutTexts.size() < loose.text.cutTexts.size() ? tight : loose;
    return best.lines.isEmpty() ? withoutHighTexts(widest) : best;
}

/// Those that are low enough together, with an ellipsis for the others.
MvDayTextRow::Set MvDayTextRow::withoutHighTexts(const QRectF &widest) const
{
    const QFont font = m_fitter.sizes().constLast();
    const MvTextFitter unchanged(font, font.pixelSize() + 1.0, MvHyphenator());
    const QSizeF anyRoom(1e5, 1e5);
    QStringList low, high;
    QRectF ink;
    for (const QString &text : m_texts) {
        const QRectF with = ink | MvCalendariumCellLine(unchanged, anyRoom, text).ink();
        const bool isLow = with.height() <= height();
        (isLow ? low : high).append(text);
        if (isLow)
            ink = with;
    }
    if (low.isEmpty() || high.isEmpty())
        return {{font, {}, true, m_texts}, {}, {}};
    Set set = fittedByInk(low + QStringList(ellipsis), widest, 1, false);
    set.text.isCut = true;
    set.text.cutTexts.removeAll(ellipsis);
    set.text.cutTexts += high;
    set.texts = low;
    return set;
}

double MvDayTextRow::height() const
{
    return m_row.cell.height() - leastMargin / 2.0;
}

void MvDayTextRow::place(const QRectF &room, std::optional<double> baseline)
{
    const double last = baseline.value_or(m_row.inner.bottom() - QFontMetricsF(m_set.text.font).descent());
    const QRectF ink = m_set.ink.translated(0.0, last);
    double shift = std::max(0.0, room.top() - ink.top()) - std::max(0.0, ink.bottom() - room.bottom());
    const bool isOnBaseline = m_set.lines.size() == 1 || (!baseline && shift == 0.0);
    if (ink.height() > room.height() || !isOnBaseline)
        shift = m_row.cell.center().y() - ink.center().y();  // as near to the line above as to that below
    const double padding = m_row.inner.left() - room.left(); // taken up no further than there is need for
    const double right = std::clamp(room.right() - ink.right(), 0.0, std::max(0.0, padding));
    for (MvCalendariumCellLine &line : m_set.lines)
        line.moveBy(right, last + shift);
}

void MvDayTextRow::draw(QPainter &painter, const QList<QColor> &colors, const QColor &other) const
{
    QList<QColor> shown;
    for (const QString &text : m_set.texts)
        shown.append(colors.value(m_texts.indexOf(text), other));
    const bool areAllShown = m_set.texts.isEmpty();
    const QList<MvColorRuns::Line> runs =
        MvColorRuns::of(m_set.text.lines, areAllShown ? m_texts : m_set.texts, areAllShown ? colors : shown);
    for (qsizetype i = 0; i < m_set.lines.size(); ++i) {
        if (colors.isEmpty() || runs.at(i).size() < 2)
            m_set.lines.at(i).draw(painter, colors.isEmpty() ? other : runs.at(i).value(0).color);
        else
            m_set.lines.at(i).draw(painter, runs.at(i));
    }
}
