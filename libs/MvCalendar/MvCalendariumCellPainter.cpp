#include "MvCalendar/MvCalendariumCellPainter.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumTextPainter.h"
#include "MvCalendar/MvTextFitter.h"
#include "MvModelBase/MvQualityTypeManager.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvProductBase/MvCalendariumContentKey.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// cells larger than this show holiday texts beside the day number
constexpr double holidayTextsFromWidth = 155.0;
constexpr double holidayTextsFromHeight = 60.0;

constexpr double textGap = 5.0; // between texts and what else is in the cell
constexpr double largeCell = 300.0;
constexpr double largeCellMargin = 10.0;
constexpr double smallCellMargin = 2.0;

constexpr int wrappingText = Qt::TextWordWrap | Qt::TextDontClip;
constexpr int topTexts = wrappingText | Qt::AlignTop | Qt::AlignHCenter;
constexpr int bottomTexts = wrappingText | Qt::AlignBottom | Qt::AlignHCenter;
constexpr double leastMargin = 1.0;
constexpr QChar ellipsis(u'…');
constexpr double widestPhotoBesideTexts = 0.5; // of a wide cell

/// The letters of a text, which are the same however it is broken into lines.
QString lettersOf(QString text)
{
    return text.removeIf(
        [](QChar c) { return c.isSpace() || c.category() == QChar::Punctuation_Dash || c == u'\u00ad'; });
}

/// Of texts that stand one behind the other in lines of which the last one was shortened. Where that one ends with a
/// whole text, its ellipsis stands apart, for the texts that follow.
QStringList textsNotWhole(const QStringList &texts, int width, const QFont &font, QStringList *lines)
{
    QString last = lines->isEmpty() ? QString() : lines->takeLast();
    if (last.endsWith(ellipsis))
        last.chop(1);
    const qsizetype seen = lettersOf(lines->join(QString()) + last).size();
    qsizetype end = 0;
    bool endsWithText = false;
    QStringList notWhole;
    for (const QString &text : texts) {
        end += lettersOf(text).size();
        if (end > seen)
            notWhole.append(text);
        endsWithText = endsWithText || end == seen || end + 1 == seen;
        end += 1; // the comma
    }
    while (endsWithText && (last.endsWith(u',') || last.endsWith(u' ')))
        last.chop(1);
    const QString ended = last + (endsWithText ? u" "_s : QString()) + ellipsis;
    if (seen > 0)
        lines->append(MvCalendariumTextPainter::advance(font, ended) <= width ? ended : last);
    return notWhole;
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
    MvCalendariumTextPainter::drawText(m_painter, rect.marginsRemoved(m_renderer.padding(type)),
                                       alignment | Qt::TextDontClip, text);
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
    if (line.isCut()) // paddings give before letters do
        line = MvCalendariumCellLine(fitter, {rect.width() - 2.0 * smallCellMargin, rect.height()}, text);
    if (line.isCut())
        m_renderer.reportUnfitting(date, text, rect);
    line.align(inner, flags == 0 ? int(m_renderer.textAlignment(type)) : flags);
    line.keepInside(rect);
    line.draw(m_painter, color);
}

void MvCalendariumCellPainter::drawNumber(const QRectF &rect, const MvCalendarCellTypeConfig &config,
                                          const QString &number, bool even, const QDate &date)
{
    const QFont font = m_renderer.font(config.inscriptionConfig());
    if (MvCalendariumTextPainter::isTextToWide(static_cast<int>(rect.width()), font, number) ||
        QFontMetricsF(font).capHeight() > rect.height())
        m_renderer.reportUnfitting(date, number, rect);
    else
        drawText(rect, config, number, 0, even);
}

void MvCalendariumCellPainter::reportMissingTexts(const QRectF &rect, const QDate &date)
{
    if (!m_renderer.abilities().hasAnyOf(ABILITY_DISPLAY_HOLIDAYS)) // knows days by their colours alone
        return;
    const QStringList texts = m_renderer.describeHolidays(date);
    if (!texts.isEmpty())
        m_renderer.reportUnfitting(date, texts.join(u", "_s), rect);
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
            return; // the photo stands for the number
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

    m_painter.save();
    preparePen(m_renderer.fontHolidays(type), color);
    m_painter.setClipRect(rect, Qt::IntersectClip);
    bool hasTooWideWord = false;
    const QStringList lines = holidayLines(texts, rect, inner, date, type, &hasTooWideWord);
    const QRectF rest = drawHolidayLines(inner, lines, type);
    m_painter.restore();

    const bool hasPicture = drawPicture(date, rest);
    if (hasTooWideWord)
        drawQualityWarning(rect);
    return hasPicture;
}

QStringList MvCalendariumCellPainter::holidayLines(const QStringList &texts, const QRectF &cell, const QRectF &inner,
                                                   const QDate &date, const MvCalendarCellType &type,
                                                   bool *hasTooWideWord)
{
    const QFont font = m_painter.font();
    const int width = static_cast<int>(inner.width());
    const double numberHeight = QFontMetricsF(m_renderer.font(type)).height();
    const double lineHeight = QFontMetricsF(font).height();
    const int maxLines = std::max(1, static_cast<int>((inner.height() - numberHeight) / lineHeight));

    QStringList lines = texts;
    bool isCut = texts.size() > maxLines;
    if (isCut || MvCalendariumTextPainter::isAnyTextToWide(width, font, texts))
        lines = MvCalendariumTextPainter::fitLines(width, maxLines, font, texts, &isCut);
    *hasTooWideWord = MvCalendariumTextPainter::isAnyTextToWide(width, font, lines);
    if (isCut || *hasTooWideWord)
        m_renderer.reportUnfitting(date, texts.join(u", "_s), cell);
    return lines;
}

QRectF MvCalendariumCellPainter::drawHolidayLines(const QRectF &inner, const QStringList &lines,
                                                  const MvCalendarCellType &type)
{
    const double lineHeight = m_painter.font().pixelSize();
    if (lines.isEmpty())
        return inner;
    if (lines.size() < 2) {
        MvCalendariumTextPainter::drawText(m_painter, inner, bottomTexts, lines.constFirst());
        return inner.adjusted(0.0, 0.0, 0.0, -(lineHeight + textGap));
    }
    const auto [top, bottom] = m_renderer.splitHolidays(lines, type);
    MvCalendariumTextPainter::drawTexts(m_painter, inner, topTexts, top);
    MvCalendariumTextPainter::drawTexts(m_painter, inner, bottomTexts, bottom);
    return inner.adjusted(0.0, lineHeight * double(top.size()) + textGap, 0.0,
                          -(lineHeight * double(bottom.size()) + textGap));
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
    const QSizeF photoRoom(inner.width() * (texts.isEmpty() ? 1.0 : widestPhotoBesideTexts), inner.height());
    const QImage picture = pictureWithin(date, photoRoom);
    if (!picture.isNull()) {
        const QSize size = picture.size().scaled(photoRoom.toSize(), Qt::KeepAspectRatio);
        m_painter.drawImage(QRectF(inner.topLeft(), size), picture);
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
    const QRectF widest(QPointF(inner.left(), rect.top() + leastMargin),
                        QPointF(std::max(inner.left(), rect.right() - leastMargin), rect.bottom() - leastMargin));
    const QStringList joined{texts.join(u", "_s)};
    MvFittedText fitted = fitter.fit(inner.size(), joined);
    if (fitted.isCut || fitted.font != fitter.font()) // paddings give before letters become smaller
        fitted = fitter.fit(widest.size(), joined);
    if (fitted.lines.isEmpty()) { // the row is lower than a line, but perhaps not than what is seen of one
        const MvCalendariumCellLine line(fitter, widest.size(), joined.constFirst());
        fitted = {line.font(), line.isEmpty() ? QStringList() : QStringList{line.text()}, line.isCut()};
    }
    if (fitted.isCut) {
        const int width = static_cast<int>(widest.width());
        for (const QString &text : textsNotWhole(texts, width, fitted.font, &fitted.lines))
            m_renderer.reportUnfitting(date, text, rect);
    }

    const QFontMetricsF metrics(fitted.font);
    const MvTextFitter unchanged(fitted.font, fitted.font.pixelSize() + 1.0, MvHyphenator());
    double y =
        baseline.value_or(inner.bottom() - metrics.descent()) - metrics.height() * double(fitted.lines.size() - 1);
    QList<MvCalendariumCellLine> lines;
    QRectF ink;
    for (const QString &text : std::as_const(fitted.lines)) {
        MvCalendariumCellLine line(unchanged, {widest.width() + inner.width(), rect.height()}, text);
        line.align(widest, Qt::AlignLeft | Qt::AlignTop);
        line.setBaseline(y);
        y += metrics.height();
        ink |= line.ink();
        lines.append(line);
    }
    const double shift = std::max(0.0, widest.top() - ink.top()) - std::max(0.0, ink.bottom() - widest.bottom());
    for (MvCalendariumCellLine &line : lines) {
        line.setBaseline(line.baseline() + shift);
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
    m_painter.drawImage(QRectF(QPointF(x, std::round(rect.y())), size), picture);
    return true;
}

QImage MvCalendariumCellPainter::pictureWithin(const QDate &date, const QSizeF &size) const
{
    const QSize pixels = (size * m_renderer.m_devicePixelsPerUnit).toSize();
    if (pixels.isEmpty())
        return {};
    return MvCalendarEventRegistry::instance().eventImage(m_renderer.contentFor(date), pixels);
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
