// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvCalendarPage.h"
#include "MvProject/MvFotoPool.h"
#include "MvProject/MvPageContext.h"
#include "MvProject/MvPageFindings.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/mvproject_export.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QStringList>

#include <functional>

class MvPageSource;
class QPainter;

/// A calendar to be printed: a page per month, or per twelve months where the layout shows years, and among them the
/// pages that somebody has put in: covers before, backs after, free ones anywhere. A value.
///
/// The pages of months follow each other without a gap. What somebody has put on them is kept by month: photos and
/// texts whose month has no page for the time being, because the range became shorter or the pages show years, come
/// back with it.
class MVPROJECT_EXPORT MvCalendarDocument
{
public:
    /// A frame for a photo, by the numbers of its page and its element; see MvCalendarPage::elementsOn().
    struct FrameId
    {
        int page = -1;
        int element = -1;

        bool operator==(const FrameId &) const = default;
    };

    /// A4 landscape, the default range, and the default holiday configuration; without schemas, invalid.
    MvCalendarDocument();

    /// The appearance of the first month's page.
    const MvCalendariumAppearance &appearance() const { return look().appearance(); }
    /// Gives all pages the appearance. When it turns months into years, or years into months, the range gets new pages.
    void setAppearance(const MvCalendariumAppearance &appearance);

    /// That of the first month's page.
    MvCalendariumHolidayConfig holidayConfig() const { return look().contentConfig().holidayConfig(); }
    /// Gives it to all pages.
    void setHolidayConfig(const MvCalendariumHolidayConfig &config);
    /// Which entries the pages show, and how these read; set for all pages.
    MvEntryDisplay entryDisplay() const { return look().contentConfig().entryDisplay(); }
    void setEntryDisplay(const MvEntryDisplay &display);
    /// Switches every bit of the feature on or off on all pages; what else they show stays each page's own.
    void setFeature(const MvCalendariumFeatures &feature, bool on);

    /// The months, whole ones, that the calendar spans.
    const MvDateRange &range() const { return m_range; }
    /// Months that stay keep their page, new ones look like the page next to them. An invalid range leaves no pages.
    void setRange(const MvDateRange &range);

    const MvPageFormat &format() const { return m_format; }
    /// Elements move as their templates say, those placed by hand with the proportions of the paper.
    void setFormat(const MvPageFormat &format);

    /// What somebody has called it; files of a calendar without a title are called by MvCalendarTitle.
    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString author() const { return m_author; }
    void setAuthor(const QString &author) { m_author = author; }

    /// The list of entries that belongs to the calendar and is printed wherever its pages show entries; empty for
    /// the user's own ones.
    QString entriesFile() const { return m_entriesFile; }
    void setEntriesFile(const QString &path) { m_entriesFile = path; }

    /// The id of the theme that the pages were last made with; empty for none.
    QString themeId() const { return m_themeId; }
    void setThemeId(const QString &id) { m_themeId = id; }

    const MvFotoPool &fotoPool() const { return m_fotoPool; }
    void setFotoPool(const MvFotoPool &pool) { m_fotoPool = pool; }

    /// In the order in which they hang, counted from 0.
    const QList<MvCalendarPage> &pages() const { return m_pages; }
    /// Replaces a page but for its kind, and of a month's page also but for its month, which follows from its place. A
    /// single page of months that changes from years to months is divided like those of setAppearance(). A number
    /// without a page changes nothing.
    void setPage(int page, const MvCalendarPage &content);
    /// False for a number without a page.
    bool isMonthPage(int page) const;
    /// A free page of the same month stands before it, for its photo: bound between them, it hangs above the month.
    /// False for a page that is no month.
    bool isFacingMonth(int page) const;
    /// The part of a page that the binding takes, and that in which texts may stand: as the paper has it, but of a
    /// photo page that hangs above its month, bound at the head, they are turned upside down.
    QRectF bindingRect(int page) const;
    QRectF safeRect(int page) const;
    /// Puts a page before the one with the number, or at the end; covers go before and backs behind all months,
    /// wherever they are wanted. A page of kind Month becomes a free one. Without a date of its own it takes that of
    /// its neighbour. Gives its number.
    int insertPage(int before, const MvCalendarPage &page);
    /// False, and no change, for a month's page.
    bool removePage(int page);
    /// Moves a free page to another number, a cover or a back among its like; months stay in order. False, and no
    /// change, where it cannot go.
    bool movePage(int from, int to);
    /// A free page with everything that is on this one, behind it; it keeps the month. Gives its number, -1 for a
    /// number without a page.
    int duplicatePage(int page);
    /// The first day of each page's month: of a cover the calendar's first month, of a back the last.
    QList<QDate> pageDates() const;

    /// Exchanges the photos of two frames with their crops and captions. False, and no change, when one is no frame.
    bool swapFotos(const FrameId &first, const FrameId &second);
    /// Every frame of every page.
    QList<FrameId> frames() const;
    /// The photo in a frame; an empty one for no frame.
    MvFotoElement foto(const FrameId &frame) const;
    /// False, and no change, when there is no such frame.
    bool setFoto(const FrameId &frame, const MvFotoElement &foto);
    /// How often the photo of each file is on a page, in a frame or as its ground.
    QHash<QString, int> fotoUses() const;
    /// Gives a photo another file wherever it is: on pages, kept, and in the pool. False when it is nowhere.
    bool replaceFoto(const QString &path, const QString &by);

    /// Takes pages as a file has them, each with its month. Months of the range that have none look like their
    /// neighbour; of pages for other months photos and texts are kept. One without any range is that of the pages.
    /// Pages that are no month's keep their places between them.
    void setPages(const MvDateRange &range, const QList<MvCalendarPage> &pages);
    /// What was put on the pages of months that have none at present, by the first day of the month. Of these pages
    /// only what somebody has put on them and their templates count.
    const QMap<QDate, MvCalendarPage> &sparePages() const { return m_sparePages; }
    void setSparePages(const QMap<QDate, MvCalendarPage> &pages);
    /// Those of simple pages.
    QMap<QDate, MvFotoFrame> spareFotos() const;
    /// Replaces those of simple pages.
    void setSpareFotos(const QMap<QDate, MvFotoFrame> &fotos);

    /// Page format, range and all pages are valid.
    bool isValid() const;

    /// What its pages need to know of it when they are painted.
    MvPageContext context() const { return {m_range, m_title, m_author}; }

    /// Paints a page, counted from 0, in tenths of a millimetre with the origin at the trimmed page's corner. A number
    /// without a page paints nothing.
    MvPageFindings paint(QPainter &painter, int page, const MvRenderingSources &sources = {}) const;

    /// The pages that show entries have an end of February, and none of them a 29 February: entries of that day are
    /// nowhere to be seen. False for a calendar that prints no February at all.
    bool lacksLeapDay() const;

    /// The texts that have no room on a page, counted from 0, in the order of painting. Paints it for nothing else.
    QList<MvUnfittingText> unfittingTexts(int page, const MvRenderingSources &sources = {}) const;
    /// The paths of the photos in frames and grounds that are not there or cannot be read, each once. Looks into the
    /// files.
    QStringList missingFotos() const;

    /// Called for each page that is painted, with its number counted from 0: again when it is painted again.
    using Found = std::function<void(int page, const MvPageFindings &findings)>;
    /// The pages for the exporters. It keeps a copy of the document; what the sources point to must outlive it. Without
    /// a source of photos it has one of its own, which keeps no more than it must.
    MvPageSource pageSource(const MvRenderingSources &sources = {}, const Found &found = {}) const;

    bool operator==(const MvCalendarDocument &other) const;

private:
    QRectF turned(const QRectF &rect, int page) const;
    const MvCalendarPage &look() const;
    int placeFor(MvPageKind kind, int wanted) const;
    int monthsPerPage() const;
    QList<MvCalendarPage> monthPages() const;
    MvCalendarPage dated(const MvCalendarPage &page) const;
    bool isFrame(const FrameId &frame) const;
    /// The month's own page, else one that looks like the nearest.
    MvCalendarPage nearestPage(const QDate &month, const QList<MvCalendarPage> &months) const;
    void putBack(const QList<MvCalendarPage> &before);
    /// Divides the range anew. Pages of the same month are taken over, others look like the nearest one.
    void divide(const MvDateRange &range, int monthsPerPage);

    MvDateRange m_range;
    MvPageFormat m_format;
    QString m_title;
    QString m_author;
    QString m_entriesFile;
    QString m_themeId;
    MvFotoPool m_fotoPool;
    QList<MvCalendarPage> m_pages;
    QMap<QDate, MvCalendarPage> m_sparePages;
    MvCalendarPage m_look; // of new pages, while there are none
};
