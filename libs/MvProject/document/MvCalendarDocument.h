// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvCalendarPage.h"
#include "MvProject/MvPageFindings.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/mvproject_export.h"

#include <QList>
#include <QMap>
#include <QStringList>

#include <functional>

class MvPageSource;
class QPainter;

/// A calendar to be printed: a page per month, or per twelve months where the layout shows years. A value.
///
/// The pages follow each other without a gap. Photos are kept by month: one whose month has no page for the time being,
/// because the range became shorter or the pages show years, comes back with it.
class MVPROJECT_EXPORT MvCalendarDocument
{
public:
    /// A4 landscape, the default range, and the default holiday configuration; without schemas, invalid.
    MvCalendarDocument();

    /// The appearance of the first page.
    const MvCalendariumAppearance &appearance() const { return look().appearance(); }
    /// Gives all pages the appearance. When it turns months into years, or years into months, the range gets new pages.
    void setAppearance(const MvCalendariumAppearance &appearance);

    /// That of the first page.
    MvCalendariumHolidayConfig holidayConfig() const { return look().contentConfig().holidayConfig(); }
    /// Gives it to all pages.
    void setHolidayConfig(const MvCalendariumHolidayConfig &config);
    /// Switches every bit of the feature on or off on all pages; what else they show stays each page's own.
    void setFeature(const MvCalendariumFeatures &feature, bool on);

    /// The months, whole ones, that the calendar spans.
    const MvDateRange &range() const { return m_range; }
    /// Months that stay keep their page, new ones look like the page next to them. An invalid range leaves no pages.
    void setRange(const MvDateRange &range);

    const MvPageFormat &format() const { return m_format; }
    void setFormat(const MvPageFormat &format) { m_format = format; }

    /// What somebody has called it; files of a calendar without a title are called by MvCalendarTitle.
    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString author() const { return m_author; }
    void setAuthor(const QString &author) { m_author = author; }

    const QList<MvCalendarPage> &pages() const { return m_pages; }
    /// Replaces a page, counted from 0, but for its month, which follows from its place. A single page that changes
    /// from years to months is divided like those of setAppearance(). A number without a page changes nothing.
    void setPage(int page, const MvCalendarPage &content);
    /// The first day of each page's month.
    QList<QDate> pageDates() const;

    /// Takes pages as a file has them, each with its month. Months of the range that have none look like their
    /// neighbour; of pages for other months only the photos are kept. One without any range is that of the pages.
    void setPages(const MvDateRange &range, const QList<MvCalendarPage> &pages);
    /// Photos whose months have no page, by the first day of the month.
    const QMap<QDate, MvFotoFrame> &spareFotos() const { return m_spareFotos; }
    void setSpareFotos(const QMap<QDate, MvFotoFrame> &fotos) { m_spareFotos = fotos; }

    /// Page format, range and all pages are valid.
    bool isValid() const;

    /// Paints a page, counted from 0, in tenths of a millimetre with the origin at the trimmed page's corner. A number
    /// without a page paints nothing.
    MvPageFindings paint(QPainter &painter, int page, const MvRenderingSources &sources = {}) const;

    /// The pages that show entries have an end of February, and none of them a 29 February: entries of that day are
    /// nowhere to be seen. False for a calendar that prints no February at all.
    bool lacksLeapDay() const;

    /// The texts that have no room on a page, counted from 0, in the order of painting. Paints it for nothing else.
    QList<MvUnfittingText> unfittingTexts(int page, const MvRenderingSources &sources = {}) const;
    /// The paths of the photos on pages that are not there or cannot be read, each once. Looks into the files.
    QStringList missingFotos() const;

    /// Called for each page that is painted, with its number counted from 0: again when it is painted again.
    using Found = std::function<void(int page, const MvPageFindings &findings)>;
    /// The pages for the exporters. It keeps a copy of the document; what the sources point to must outlive it.
    MvPageSource pageSource(const MvRenderingSources &sources = {}, const Found &found = {}) const;

    bool operator==(const MvCalendarDocument &other) const;

private:
    const MvCalendarPage &look() const { return m_pages.isEmpty() ? m_look : m_pages.constFirst(); }
    int monthsPerPage() const;
    const MvCalendarPage &nearestPage(const QDate &month, const QList<MvCalendarPage> &pages) const;
    /// Divides the range anew. Pages of the same month are taken over, others look like the nearest one.
    void divide(const MvDateRange &range, int monthsPerPage);

    MvDateRange m_range;
    MvPageFormat m_format;
    QString m_title;
    QString m_author;
    QList<MvCalendarPage> m_pages;
    QMap<QDate, MvFotoFrame> m_spareFotos;
    MvCalendarPage m_look; // of new pages, while there are none
};
