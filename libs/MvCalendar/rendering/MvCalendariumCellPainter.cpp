// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumCellPainter.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvDayTextPlacement.h"
#include "MvFoto/MvFotoResolution.h"
#include "MvModelBase/MvQualityTypeManager.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextPainter.h"
#include "MvProductBase/MvCalendariumContentKey.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// cells larger than this show holiday texts beside the day number
constexpr double holidayTextsFromWidth = 155.0;
constexpr double holidayTextsFromHeight = 60.0;

constexpr double textGap = 5.0; // between texts and what else is in the cell
const QString tallestDigit = u"8"_s;
const QString widestNumber = u"22"_s;
const QString broadestNumber = u"24"_s; // widest ink
constexpr double numberAir = 0.3;       // of the type's size, between two numbers side by side
constexpr double leastNumberAir = 0.1;  // nearer than that, two numbers read as one
constexpr double mostPixels = 8192.0;   // of a photo in a cell, on each side
constexpr double largeCell = 300.0;
constexpr double largeCellMargin = 10.0;
constexpr double smallCellMargin = 2.0;

constexpr int wrappingText = Qt::TextWordWrap | Qt::TextDontClip;
constexpr int topTexts = wrappingText | Qt::AlignTop | Qt::AlignHCenter;
constexpr int bottomTexts = wrappingText | Qt::AlignBottom | Qt::AlignHCenter;
constexpr double overhangOfLetters = 0.1; // of their size, beyond the advance of a line
constexpr double leastMargin = 1.0;
constexpr double widestFotoBesideTexts = 0.5; // of a wide cell
const QString separator = u", "_s;

/// Lines one below the other, the last on the baseline 0.
struct Block
{
    QList<MvCalendariumCellLine> lines;
    QRectF ink;
};

/// By line height, or further apart where letters would meet the accents below them. Tight: as near as letters allow.
Block stacked(const MvFittedText &text, const QRectF &widest, bool isTight = false)
{
    const MvTextFitter unchanged(text.font, text.font.pixelSize() + 1.0, MvHyphenator());
    Block block;
    const double height = QFontMetricsF(text.font).height();
    double pitch = isTight ? 0.0 : height;
    for (const QString &words : text.lines) {
        MvCalendariumCellLine line(unchanged, {2.0 * widest.width(), 2.0 * height}, words);
        line.align(widest, Qt::AlignLeft | Qt::AlignTop);
        line.setBaseline(0.0);
        if (!block.lines.isEmpty())
            pitch = std::max(pitch, block.lines.constLast().ink().bottom() - line.ink().top() + leastMargin);
        block.lines.append(line);
    }
    double y = -pitch * double(block.lines.size() - 1);
    for (MvCalendariumCellLine &line : block.lines) {
        line.setBaseline(y);
        block.ink |= line.ink();
        y += pitch;
    }
    return block;
}

/// By what is seen of the lines instead of their height: in the largest type that does, or as much as there is room
/// for.
std::pair<MvFittedText, Block> fitInk(const MvTextFitter &fitter, double height, const QRectF &widest,
                                      const QStringList &texts, qsizetype mostLines, bool isTight)
{
    const QList<QFont> sizes = fitter.sizes();
    std::pair<MvFittedText, Block> best{{sizes.constLast(), {}, true, texts}, {}};
    for (const QFont &font : sizes) {
        const double line = QFontMetricsF(font).height();
        const MvTextFitter fixed(font, font.pixelSize() + 1.0, fitter.hyphenator());
        for (auto count = mostLines; count > 0; --count) {
            const MvFittedText set = fixed.fitRunning({widest.width(), line * double(count)}, texts, separator);
            const Block block = stacked(set, widest, isTight);
            if (block.lines.isEmpty() || block.ink.height() > height)
                continue;
            if (!set.isCut)
                return {set, block};
            best = {set, block};
            break;
        }
    }
    return best;
}

/// Fits texts whose ink is at most `height` high: into the room less its paddings, or else into the widest room.
std::pair<MvFittedText, Block> fitWide(const MvTextFitter &fitter, double height, const QRectF &inner,
                                       const QRectF &widest, const QStringList &texts)
{
    MvFittedText fitted = fitter.fitRunning(inner.size(), texts, separator);
    if (fitted.isCut || fitted.font != fitter.font()) // paddings are used up before letters become smaller
        fitted = fitter.fitRunning(widest.size(), texts, separator);
    const Block block = stacked(fitted, widest);
    if (!block.lines.isEmpty() && !fitted.isCut && block.ink.height() <= height)
        return {fitted, block};
    const auto most = std::max<qsizetype>(1, fitted.lines.size());
    const auto loose = fitInk(fitter, height, widest, texts, most, false);
    if (!loose.first.isCut)
        return loose;
    const auto tight = fitInk(fitter, height, widest, texts, most + 1, true);
    return tight.first.cutTexts.size() < loose.first.cutTexts.size() ? tight : loose;
}

} // namespace

MvCalendariumCellPainter::MvCalendariumCellPainter(MvCalendariumRenderer &renderer, QPainter &painter)
    : m_renderer(renderer)
    , m_painter(painter)
{}

void MvCalendariumCellPainter::drawBackground(const QRectF &rect, const MvCalendarCellTypeConfig &config, bool even)
{
    drawGround(rect, config, even);
    if (m_renderer.shouldIPaintTheBorder(config))
        drawBorder(rect, config.colorConfig());
}

void MvCalendariumCellPainter::drawGround(const QRectF &rect, const MvCalendarCellTypeConfig &config, bool even)
{
    if (!m_renderer.shouldIPaintTheBackground(config, even))
        return;
    QColor color = m_renderer.backgroundColor(config, even);
    color.setAlphaF(color.alphaF() * static_cast<float>(m_renderer.m_backgroundAlpha));
    m_renderer.addFill(rect, color);
}

void MvCalendariumCellPainter::drawBorder(const QRectF &rect, const MvCalendarCellType &type)
{
    const MvCalendarBorderType sides = m_renderer.borderType(type);
    m_painter.save();
    m_renderer.createBorderPen(m_painter);
    if (sides.hasAnyOf(CALENDAR_BORDER_LEFT))
        m_painter.drawLine(QLineF(rect.topLeft(), rect.bottomLeft()));
    if (sides.hasAnyOf(CALENDAR_BORDER_RIGHT))
        m_painter.drawLine(QLineF(rect.topRight(), rect.bottomRight()));
    if (sides.hasAnyOf(CALENDAR_BORDER_TOP))
        m_painter.drawLine(QLineF(rect.topLeft(), rect.topRight()));
    if (sides.hasAnyOf(CALENDAR_BORDER_BOTTOM))
        m_painter.drawLine(QLineF(rect.bottomLeft(), rect.bottomRight()));
    m_painter.restore();
}

void MvCalendariumCellPainter::drawText(const QRectF &rect, const MvCalendarCellTypeConfig &config, const QString &text,
                                        int flags, bool even)
{
    const QColor color = m_renderer.fontColor(config, even);
    if (!m_renderer.isOpaqueColor(color))
        return;
    const MvCalendarCellType &type = config.inscriptionConfig();
    m_painter.save();
    preparePen(m_renderer.font(type), color);
    const int alignment = flags == 0 ? int(m_renderer.textAlignment(type)) : flags;
    MvTextPainter::drawText(m_painter, rect.marginsRemoved(m_renderer.padding(type)), alignment | Qt::TextDontClip,
                            text);
    m_painter.restore();
}

void MvCalendariumCellPainter::drawFittingText(const QRectF &rect, const MvCalendarCellTypeConfig &config,
                                               const QString &text, int flags, bool even, const QDate &date)
{
    const MvCalendarCellType &type = config.inscriptionConfig();
    const QColor color = m_renderer.fontColor(config, even);
    if (!m_renderer.isOpaqueColor(color))
        return;
    const QRectF inner = rect.marginsRemoved(m_renderer.padding(type));
    const MvTextFitter fitter = m_renderer.fitter(type);
    MvCalendariumCellLine line(fitter, {inner.intersected(rect).width(), rect.height()}, text);
    if (line.isCut()) // paddings are used up before the text is shortened
        line = MvCalendariumCellLine(fitter, {rect.width() - 2.0 * smallCellMargin, rect.height()}, text);
    if (line.isCut())
        m_renderer.reportUnfitting(date, text, rect);
    m_renderer.reportMissingGlyphs(date, {text}, line.font(), rect);
    line.align(inner, flags == 0 ? int(m_renderer.textAlignment(type)) : flags);
    line.keepInside(rect);
    line.draw(m_painter, color);
}

MvCalendariumCellLine MvCalendariumCellPainter::numberLine(const QRectF &rect, const MvCalendarCellType &type,
                                                           const QString &number) const
{
    const MvTextFitter fitter = m_renderer.fitter(type);
    const QList<QFont> sizes = fitter.sizes();
    const auto hasRoom = [&](const QFont &font) { // all numbers of a page are as large as the widest
        return MvTextPainter::advance(font, widestNumber) + numberAir * font.pixelSize() <= rect.width() &&
               QFontMetricsF(font).capHeight() <= rect.height() - 2.0 * leastMargin;
    };
    const auto size = std::find_if(sizes.cbegin(), sizes.cend(), hasRoom);
    const QFont font = size == sizes.cend() ? sizes.constLast() : *size;
    const MvTextFitter fixed(font, fitter.floor(), MvHyphenator());
    const double hair = leastMargin / 2.0;
    const auto inkOf = [&](const QString &digits) {
        return MvCalendariumCellLine({font, font.pixelSize() + 1.0, MvHyphenator()}, 2.0 * rect.size(), digits).ink();
    };
    MvCalendariumCellLine line(fixed, rect.size(), number);
    const bool isTooNear =
        size == sizes.cend() && inkOf(broadestNumber).width() + leastNumberAir * font.pixelSize() > rect.width();
    if (line.isCut() || isTooNear || inkOf(tallestDigit).height() > rect.height() - hair)
        return {fixed, QSizeF(), number}; // no number is cut: either all numbers of a page fit or none is shown
    line.align(rect.marginsRemoved(m_renderer.padding(type)), int(m_renderer.textAlignment(type)));
    const bool isTight = inkOf(tallestDigit).height() > rect.height() - 2.0 * leastMargin;
    const double upright = isTight ? hair / 2.0 : leastMargin;
    line.keepInside(rect.adjusted(leastMargin, upright, -leastMargin, -upright));
    return line;
}

void MvCalendariumCellPainter::drawNumber(const QRectF &rect, const MvCalendarCellTypeConfig &config,
                                          const QString &number, bool even, const QDate &date)
{
    const QColor color = m_renderer.fontColor(config, even);
    if (!m_renderer.isOpaqueColor(color))
        return;
    const MvCalendariumCellLine line = numberLine(rect, config.inscriptionConfig(), number);
    if (line.isEmpty())
        m_renderer.reportUnfitting(date, number, rect);
    line.draw(m_painter, color);
}

void MvCalendariumCellPainter::reportMissingTexts(const QRectF &rect, const QDate &date)
{
    if (!m_renderer.abilities().hasAnyOf(ABILITY_DISPLAY_HOLIDAYS)) // the layout marks days by colour only
        return;
    const QStringList texts = m_renderer.describeHolidays(date);
    for (const QString &text : texts)
        m_renderer.reportUnfitting(date, text, rect);
}

void MvCalendariumCellPainter::preparePen(const QFont &font, const QColor &color)
{
    m_painter.setFont(font);
    m_painter.setPen(QPen(QBrush(color), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
}

void MvCalendariumCellPainter::drawDayNumber(const QRectF &rect, const QDate &date)
{
    const bool even = m_renderer.isEvenWeek(date);
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    drawBackground(rect, config, even);
    if (rect.width() > holidayTextsFromWidth && rect.height() > holidayTextsFromHeight) {
        if (drawHoliday(rect, date, even))
            return; // the photo takes the place of the number
    } else {
        Q_EMIT m_renderer.rectForDateFound(date, rect);
        reportMissingTexts(rect, date);
    }
    drawNumber(rect, config, QString::number(date.day()), even, date);
}

void MvCalendariumCellPainter::drawPlainDay(const QRectF &rect, const QDate &date, const QString &number)
{
    const bool even = m_renderer.isEvenWeek(date);
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    drawBackground(rect, config, even);
    Q_EMIT m_renderer.rectForDateFound(date, rect);
    drawNumber(rect, config, number, even, date);
}

bool MvCalendariumCellPainter::drawHoliday(const QRectF &rect, const QDate &date, bool even)
{
    Q_EMIT m_renderer.rectForDateFound(date, rect);
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    const MvCalendarCellType &type = config.inscriptionConfig();
    const QRectF inner = rect.marginsRemoved(m_renderer.padding(type));
    const QColor color = m_renderer.fontColor(config, even);
    const QStringList texts = m_renderer.describeHolidays(date);
    if (!m_renderer.isOpaqueColor(color) || texts.isEmpty())
        return drawPicture(date, inner);

    const MvTextFitter fitter = m_renderer.holidayFitter(type);
    const MvCalendariumCellLine number = numberLine(rect, type, QString::number(date.day()));
    const MvDayCell cell{rect, inner, m_renderer.textAlignment(type), QFontMetricsF(number.font()).height(),
                         number.isEmpty() ? QRectF() : number.ink()};
    const MvPlacedTexts placed = MvDayTextPlacement(cell, fitter).place(texts);
    m_painter.save();
    preparePen(placed.text.font, color);
    m_painter.setClipRect(rect, Qt::IntersectClip);
    drawPlaced(placed);
    m_painter.restore();
    reportCut(date, placed.text, rect);
    m_renderer.reportMissingGlyphs(date, texts, placed.text.font, rect);

    const bool hasPicture = drawPicture(date, placed.rest(inner));
    if (placed.text.isCut)
        drawQualityWarning(rect);
    return hasPicture;
}

void MvCalendariumCellPainter::drawPlaced(const MvPlacedTexts &texts)
{
    const auto draw = texts.text.lines.size() == 1 ? [](QPainter &painter, const QRectF &room, int flags,
                                                        const QStringList &lines) {
        if (!lines.isEmpty())
            MvTextPainter::drawText(painter, room, flags, lines.constFirst());
    } : &MvTextPainter::drawTexts;
    draw(m_painter, texts.room, topTexts, texts.top);
    draw(m_painter, texts.room, bottomTexts, texts.bottom);
}

void MvCalendariumCellPainter::reportCut(const QDate &date, const MvFittedText &text, const QRectF &rect)
{
    for (const QString &cut : text.cutTexts)
        m_renderer.reportUnfitting(date, cut, rect);
}

void MvCalendariumCellPainter::drawHolidayWide(const QRectF &rect, const QDate &date, bool even,
                                               std::optional<double> baseline)
{
    Q_EMIT m_renderer.rectForDateFound(date, rect);
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    const MvCalendarCellType &type = config.inscriptionConfig();
    const double vertical = rect.height() > largeCell ? largeCellMargin : smallCellMargin;
    const double horizontal = rect.width() > largeCell ? largeCellMargin : smallCellMargin;
    QRectF inner = rect.marginsRemoved(m_renderer.padding(type)).adjusted(horizontal, vertical, -horizontal, -vertical);

    const QColor color = m_renderer.fontColor(config, even);
    const QStringList texts = m_renderer.isOpaqueColor(color) ? m_renderer.describeHolidays(date) : QStringList();
    const QSizeF fotoRoom(inner.width() * (texts.isEmpty() ? 1.0 : widestFotoBesideTexts), inner.height());
    const QImage picture = pictureWithin(date, fotoRoom);
    if (!picture.isNull()) {
        const QSize size = picture.size().scaled(fotoRoom.toSize(), Qt::KeepAspectRatio);
        drawFoto(date, QRectF(inner.topLeft(), size), picture);
        inner.setLeft(inner.left() + size.width() + textGap);
    }
    if (texts.isEmpty())
        return;
    m_painter.save();
    m_painter.setClipRect(rect, Qt::IntersectClip);
    drawWideTexts(rect, inner, texts, config, even, date, baseline);
    m_painter.restore();
}

void MvCalendariumCellPainter::drawWideTexts(const QRectF &rect, const QRectF &inner, const QStringList &texts,
                                             const MvCalendarCellTypeConfig &config, bool even, const QDate &date,
                                             std::optional<double> baseline)
{
    const MvTextFitter fitter = m_renderer.holidayFitter(config.inscriptionConfig());
    const double overhang = overhangOfLetters * fitter.font().pixelSize();
    const QRectF widest(
        QPointF(inner.left(), rect.top() + leastMargin),
        QPointF(std::max(inner.left(), rect.right() - leastMargin - overhang), rect.bottom() - leastMargin));
    const auto [fitted, block] = fitWide(fitter, rect.height() - leastMargin / 2.0, inner, widest, texts);
    reportCut(date, fitted, rect);
    m_renderer.reportMissingGlyphs(date, texts, fitted.font, rect);
    if (block.lines.isEmpty())
        return;

    const double last = baseline.value_or(inner.bottom() - QFontMetricsF(fitted.font).descent());
    const QRectF ink = block.ink.translated(0.0, last);
    double shift = std::max(0.0, widest.top() - ink.top()) - std::max(0.0, ink.bottom() - widest.bottom());
    const bool isOnBaseline = block.lines.size() == 1 || (!baseline && shift == 0.0);
    if (ink.height() > widest.height() || !isOnBaseline)
        shift = rect.center().y() - ink.center().y(); // as near to the line above as to that below
    for (MvCalendariumCellLine line : block.lines) {
        line.setBaseline(line.baseline() + last + shift);
        line.draw(m_painter, m_renderer.fontColor(config, even));
    }
}

bool MvCalendariumCellPainter::drawPicture(const QDate &date, const QRectF &rect)
{
    const QImage picture = pictureWithin(date, rect.size());
    if (picture.isNull())
        return false;
    const QSize size = picture.size().scaled(rect.size().toSize(), Qt::KeepAspectRatio);
    double x = std::round(rect.x());
    if (rect.width() > size.width())
        x = std::trunc(x + (rect.width() - size.width()) * 0.5);
    drawFoto(date, QRectF(QPointF(x, std::round(rect.y())), size), picture);
    return true;
}

void MvCalendariumCellPainter::drawFoto(const QDate &date, const QRectF &rect, const QImage &picture)
{
    m_painter.drawImage(rect, picture);
    m_renderer.reportFoto(date, rect);
    if (!MvRenderingRule::decodeFrom(m_painter).hasFlag(MvRenderingRule::ShowQualityWarnings))
        return; // the size of its file need not be known
    const QSize full = m_renderer.sources().entriesOrDefault().imageFile(m_renderer.contentFor(date)).size;
    MvFotoResolution::paintWarning(m_painter, rect, MvFotoResolution::pixelsPerInch(full, rect.size()));
}

QImage MvCalendariumCellPainter::pictureWithin(const QDate &date, const QSizeF &size) const
{
    const QSizeF wanted = size * m_renderer.m_devicePixelsPerUnit;
    if (!(wanted.width() >= 1.0 && wanted.height() >= 1.0))
        return {};
    const double tooMany = std::max({1.0, wanted.width() / mostPixels, wanted.height() / mostPixels});
    const MvRenderingSources &sources = m_renderer.sources();
    return sources.entriesOrDefault().eventImage(m_renderer.contentFor(date), (wanted / tooMany).toSize(),
                                                 sources.fotosOrDefault());
}

void MvCalendariumCellPainter::drawQualityWarning(const QRectF &rect)
{
    if (!MvRenderingRule::decodeFrom(m_painter).hasFlag(MvRenderingRule::ShowQualityWarnings))
        return;
    const int edge = static_cast<int>(std::min(rect.width(), rect.height()));
    const QPixmap symbol = MvQualityTypeManager::instance().qualityWarningPixmap(edge);
    const QPointF offset(std::round((rect.width() - symbol.width()) / 2.0),
                         std::round((rect.height() - symbol.height()) / 2.0));
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.drawPixmap(rect.topLeft() + offset, symbol);
    m_painter.restore();
}
