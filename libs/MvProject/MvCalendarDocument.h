#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvUnfittingText.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/mvproject_export.h"

#include <QRectF>

#include <memory>

class MvCalendariumRenderer;
class MvPageSource;
class QPainter;

/// A calendar to be printed: one calendarium per page, month after month. A value.
///
/// A layout of whole years has one page per twelve months instead. Above layouts that do not show their month stands
/// the line that they name for it.
class MVPROJECT_EXPORT MvCalendarDocument
{
public:
    /// A4 landscape, the default range, and the default holiday configuration; without schemas, invalid.
    MvCalendarDocument();

    const MvCalendariumAppearance &appearance() const { return m_appearance; }
    void setAppearance(const MvCalendariumAppearance &appearance) { m_appearance = appearance; }

    const MvCalendariumHolidayConfig &holidayConfig() const { return m_holidayConfig; }
    void setHolidayConfig(const MvCalendariumHolidayConfig &config) { m_holidayConfig = config; }

    /// The months, whole ones, that the calendar spans.
    const MvDateRange &range() const { return m_range; }
    void setRange(const MvDateRange &range) { m_range = range; }

    const MvPageFormat &format() const { return m_format; }
    void setFormat(const MvPageFormat &format) { m_format = format; }

    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString author() const { return m_author; }
    void setAuthor(const QString &author) { m_author = author; }

    /// Appearance, range and page format are valid.
    bool isValid() const;

    /// The first day of each page's month.
    QList<QDate> pages() const;
    /// Paints a page, counted from 0, in tenths of a millimetre with the origin at the trimmed page's corner. Personal
    /// entries are those of the active list. A page that there is not stays empty.
    void paint(QPainter &painter, int page) const;

    /// The texts that have no room on a page, counted from 0, in the order of painting.
    QList<MvUnfittingText> unfittingTexts(int page) const;

    /// The pages for the exporters. It keeps a copy of the document.
    MvPageSource pageSource() const;

    bool operator==(const MvCalendarDocument &) const = default;

private:
    void paintBackground(QPainter &painter) const;
    /// Paints a page that there is and gives what had no room on it.
    QList<MvUnfittingText> paintPage(QPainter &painter, const QDate &month) const;
    std::unique_ptr<MvCalendariumRenderer> renderer(const MvCalendariumAppearance &appearance,
                                                    const QDate &month) const;
    /// Gives what it leaves of the rectangle.
    QRectF paintMonthLine(QPainter &painter, const QRectF &rect, const QDate &month) const;

    MvCalendariumAppearance m_appearance;
    MvCalendariumHolidayConfig m_holidayConfig;
    MvDateRange m_range;
    MvPageFormat m_format;
    QString m_title;
    QString m_author;
};
