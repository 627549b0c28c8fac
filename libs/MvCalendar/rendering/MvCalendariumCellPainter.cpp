// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumCellPainter.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvCalendariumColorCellInfo.h"
#include "MvCalendar/MvCalendariumDays.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvDayTextPlacement.h"
#include "MvCalendar/MvDayTextRow.h"
#include "MvFoto/MvFotoResolution.h"
#include "MvModelBase/MvQualityTypeManager.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintMark.h"
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
constexpr double airInLetters = 1.2;    // and nearer than that, in what is between two digits of one number
constexpr double anyRoom = 1e5;         // more than any text takes
constexpr double mostPixels = 8192.0;   // of a photo in a cell, on each side
constexpr double largeCell = 300.0;
constexpr double largeCellMargin = 10.0;
constexpr double smallCellMargin = 2.0;

constexpr int wrappingText = Qt::TextWordWrap | Qt::TextDontClip;
constexpr int topTexts = wrappingText | Qt::AlignTop | Qt::AlignHCenter;
constexpr int bottomTexts = wrappingText | Qt::AlignBottom | Qt::AlignHCenter;
constexpr double leastMargin = 1.0;
constexpr double widestFotoBesideTexts = 0.5; // of a wide cell
constexpr double readableContrast = 4.5;
constexpr double strengthOfBars = 0.45; // of those without a colour: between ground and text
constexpr double mostOfCell = 0.4;      // that bars may take

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto mix = [share](float one, float other) { return float(one + (other - one) * share); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

bool hasRoomForTexts(const QRectF &cell)
{
    return cell.width() > holidayTextsFromWidth && cell.height() > holidayTextsFromHeight;
}

/// What is left of a text when it is broken into lines.
qsizetype lengthOf(const QString &text)
{
    return std::count_if(text.cbegin(), text.cend(), [](QChar c) {
        return !c.isSpace() && c != u'-' && c != QChar(0x2010) && c.category() != QChar::Other_Format;
    });
}

/// To which text each of the lines belongs; every text begins on a new line.
QList<qsizetype> ownersOf(const QStringList &lines, const QStringList &texts)
{
    QList<qsizetype> owners;
    qsizetype text = 0;
    qsizetype left = texts.isEmpty() ? 0 : lengthOf(texts.constFirst());
    for (const QString &line : lines) {
        while (left <= 0 && text + 1 < texts.size())
            left = lengthOf(texts.at(++text));
        owners.append(text);
        left -= lengthOf(line);
    }
    return owners;
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
    const auto hasRoom = [&](const QFont &font) { // all numbers of a page are as large as the widest
        return MvTextPainter::advance(font, widestNumber) + numberAir * font.pixelSize() <= rect.width() &&
               QFontMetricsF(font).capHeight() <= rect.height() - 2.0 * leastMargin;
    };
    const QList<QFont> sizes = hasRoom(fitter.font()) ? QList{fitter.font()} : fitter.sizes();
    const auto size = std::find_if(sizes.cbegin(), sizes.cend(), hasRoom);
    const QFont font = size == sizes.cend() ? sizes.constLast() : *size;
    const MvTextFitter fixed(font, fitter.floor(), MvHyphenator());
    const double hair = leastMargin / 2.0;
    const auto inkOf = [&](const QString &digits) { // in any room: digits that are cut have no ink
        return MvCalendariumCellLine({font, font.pixelSize() + 1.0, MvHyphenator()}, {anyRoom, anyRoom}, digits).ink();
    };
    MvCalendariumCellLine line(fixed, rect.size(), number);
    const bool isTooNear = size == sizes.cend() && [&] {
        const double ink = inkOf(broadestNumber).width();
        const double betweenDigits = MvTextPainter::advance(font, broadestNumber) - ink;
        return ink + std::max(leastNumberAir * font.pixelSize(), airInLetters * betweenDigits) > rect.width();
    }();
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
    if (hasRoomForTexts(rect)) {
        if (drawHoliday(rect, date, even))
            return; // the photo takes the place of the number
    } else {
        Q_EMIT m_renderer.rectForDateFound(date, rect);
        reportMissingTexts(rect, date);
        if (const MvSpanBars::Bars bars = m_renderer.days().bars(date); !bars.isEmpty()) {
            const MvCalendariumCellLine number =
                numberLine(rect, config.inscriptionConfig(), QString::number(date.day()));
            drawBars(rect, date, even, bars, number.isEmpty() ? QRectF() : number.ink());
        }
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
    const QColor color = m_renderer.fontColor(config, even);
    const MvCalendariumDay day = m_renderer.day(date);
    const MvSpanBars::Bars bars = m_renderer.days().bars(date);
    QRectF inner = rect.marginsRemoved(m_renderer.padding(type));
    if (day.texts.isEmpty() && bars.isEmpty())
        return drawPicture(date, inner);
    const MvCalendariumCellLine number = numberLine(rect, type, QString::number(date.day()));
    inner &= drawBars(rect, date, even, bars, number.isEmpty() ? QRectF() : number.ink());
    const QStringList &texts = day.texts;
    if (!m_renderer.isOpaqueColor(color) || texts.isEmpty())
        return drawPicture(date, inner);

    const MvTextFitter fitter = m_renderer.holidayFitter(type);
    const MvDayCell cell{rect, inner, m_renderer.textAlignment(type), QFontMetricsF(number.font()).height(),
                         number.isEmpty() ? QRectF() : number.ink()};
    const MvPlacedTexts placed = MvDayTextPlacement(cell, fitter).place(texts);
    m_painter.save();
    preparePen(placed.text.font, color);
    m_painter.setClipRect(rect, Qt::IntersectClip);
    if (day.colors.isEmpty()) {
        drawPlaced(placed);
    } else {
        drawPlaced(placed, texts, readable(day.colors, date, even));
    }
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

/// Each text in its colour: the lines of one colour together, with the places of the others left free.
void MvCalendariumCellPainter::drawPlaced(const MvPlacedTexts &texts, const QStringList &written,
                                          const QList<QColor> &colors)
{
    const QList<qsizetype> owners = ownersOf(texts.top + texts.bottom, written);
    QList<QColor> different;
    for (const QColor &color : colors) {
        if (!different.contains(color))
            different.append(color);
    }
    for (const QColor &color : std::as_const(different)) {
        MvPlacedTexts part = texts;
        for (qsizetype i = 0; i < owners.size(); ++i) {
            if (colors.value(owners.at(i)) != color)
                (i < texts.top.size() ? part.top[i] : part.bottom[i - texts.top.size()]).clear();
        }
        m_painter.setPen(color);
        drawPlaced(part);
    }
}

/// The colour, mixed with that of the page's texts as far as it must be to be read on the day's ground.
QColor MvCalendariumCellPainter::readable(const QColor &color, const QDate &date, bool even) const
{
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    const QColor text = m_renderer.fontColor(config, even);
    if (!color.isValid())
        return text;
    MvCalendariumColorCellInfo cell;
    cell.setBackgroundColor(m_renderer.backgroundColor(config, even), true);
    constexpr int steps = 10;
    for (int step = 0; step < steps; ++step) {
        const QColor tried = mixed(color, text, double(step) / steps);
        cell.setFontColor(tried, true);
        if (cell.cellContrast(Qt::white, true) >= readableContrast)
            return tried;
    }
    return text;
}

QList<QColor> MvCalendariumCellPainter::readable(const QList<QColor> &colors, const QDate &date, bool even) const
{
    QList<QColor> readableOnes;
    for (const QColor &color : colors)
        readableOnes.append(readable(color, date, even));
    return readableOnes;
}

QRectF MvCalendariumCellPainter::drawBars(const QRectF &rect, const QDate &date, bool even,
                                          const MvSpanBars::Bars &bars, const QRectF &numberInk)
{
    const bool showsTexts = m_renderer.abilities().hasAnyOf(ABILITY_DISPLAY_HOLIDAYS) || hasRoomForTexts(rect);
    if (bars.isEmpty() || !showsTexts) // the layout marks days by colour only
        return rect;
    const Qt::Edge edge = m_renderer.spanEdge(date);
    const bool isUpright = edge == Qt::LeftEdge || edge == Qt::RightEdge;
    const double most = mostOfCell * (isUpright ? rect.width() : rect.height());
    MvSpanBars::Bars shown = bars;
    const auto hasRoom = [&] {
        return shown.constLast().lane < MvSpanBars::mostLanes && MvSpanBars::thickness(shown) <= most &&
               (numberInk.isNull() || MvSpanBars::rest(shown, rect, edge).contains(numberInk));
    };
    while (!shown.isEmpty() && !hasRoom()) {
        const MvSpanBars::Bar bar = shown.takeLast();
        m_renderer.reportBarWithoutRoom(bar.text, bar.start, date, rect);
    }
    const MvCalendarCellTypeConfig weekday(CALENDAR_CELL_TYPE_WEEKDAY); // the same on all days
    const QColor text = m_renderer.fontColor(weekday, even);
    const QColor ground = m_renderer.backgroundColor(weekday, true);
    const QColor usual = mixed(ground.alpha() > 0 ? ground : QColor(Qt::white), text, strengthOfBars);
    const QStringList written = m_renderer.day(date).texts;
    for (const MvSpanBars::Bar &bar : std::as_const(shown)) {
        const bool isNamed = written.contains(bar.text);
        const MvPaintMarking mark(m_painter, isNamed ? MvPaintMark::Kind::Decoration : MvPaintMark::Kind::Figure,
                                  1 + bar.lane, 0, {bar.text});
        m_painter.fillRect(MvSpanBars::rectOf(bar, rect, edge).intersected(rect.adjusted(0, 0, 1, 1)),
                           bar.color.isValid() ? bar.color : usual);
    }
    return MvSpanBars::rest(shown, rect, edge);
}

void MvCalendariumCellPainter::reportCut(const QDate &date, const MvFittedText &text, const QRectF &rect)
{
    for (const QString &cut : text.cutTexts)
        m_renderer.reportUnfitting(date, cut, rect);
}

MvDayColumn MvCalendariumCellPainter::wholeDay(const QDate &date) const
{
    const MvCalendariumDay day = m_renderer.day(date);
    return {day.texts, day.colors, m_renderer.days().bars(date)};
}

void MvCalendariumCellPainter::drawHolidayWide(const QRectF &rect, const QDate &date, bool even,
                                               std::optional<double> baseline)
{
    drawColumn(rect, date, even, baseline, wholeDay(date), true);
}

void MvCalendariumCellPainter::drawColumn(const QRectF &rect, const QDate &date, bool even,
                                          std::optional<double> baseline, const MvDayColumn &column, bool isFirst)
{
    if (isFirst)
        Q_EMIT m_renderer.rectForDateFound(date, rect);
    const MvCalendarCellTypeConfig config = m_renderer.contentCellTypeConfig(date);
    const MvCalendarCellType &type = config.inscriptionConfig();
    const double vertical = rect.height() > largeCell ? largeCellMargin : smallCellMargin;
    const double horizontal = rect.width() > largeCell ? largeCellMargin : smallCellMargin;
    QRectF inner = rect.marginsRemoved(m_renderer.padding(type)).adjusted(horizontal, vertical, -horizontal, -vertical);

    const QColor color = m_renderer.fontColor(config, even);
    const QRectF withoutBars = drawBars(rect, date, even, column.bars);
    const double besideBars = withoutBars == rect ? 0.0 : textGap;
    inner.setLeft(std::max(inner.left(), withoutBars.left() + besideBars));
    inner.setRight(std::min(inner.right(), withoutBars.right() - besideBars));
    const QStringList texts = m_renderer.isOpaqueColor(color) ? column.texts : QStringList();
    const QSizeF fotoRoom(inner.width() * (texts.isEmpty() ? 1.0 : widestFotoBesideTexts), inner.height());
    const QImage picture = isFirst ? pictureWithin(date, fotoRoom) : QImage();
    double leastLeft = withoutBars.left() + smallCellMargin;
    if (!picture.isNull()) {
        const QSize size = picture.size().scaled(fotoRoom.toSize(), Qt::KeepAspectRatio);
        drawFoto(date, QRectF(inner.topLeft(), size), picture);
        inner.setLeft(inner.left() + size.width() + textGap);
        leastLeft = inner.left();
    }
    if (texts.isEmpty())
        return;
    const MvTextFitter fitter = m_renderer.holidayFitter(type);
    const MvDayTextRow row(fitter, {withoutBars, inner, leastLeft}, texts, baseline);
    reportCut(date, row.text(), rect);
    m_renderer.reportMissingGlyphs(date, texts, row.text().font, rect);
    m_painter.save();
    m_painter.setClipRect(rect, Qt::IntersectClip);
    row.draw(m_painter, readable(column.colors, date, even), color);
    m_painter.restore();
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
    const MvPaintMarking mark(m_painter, MvPaintMark::Kind::Figure, 0, 0,
                              {m_renderer.describePersonalHolidays(date).join(u", "_s)});
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
