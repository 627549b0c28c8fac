// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvFoto/MvFoto.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvDateRange.h"

#include <QDate>
#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRectF>
#include <QTimer>
#include <QTransform>

#include <functional>
#include <limits>

class MvCalendarDayEditorDialog;
class MvDayMenu;
class MvGraphicsItemCalendariumCell;
class QGraphicsObject;
class QMenu;
class QSvgRenderer;
class QWidget;

/// Keeps a cell over every date of a calendarium on the canvas, so that dates can be clicked. A click opens a menu of
/// the day's personal entries, which leads to the day editor; a photo dropped on a day goes into its entry.
///
/// To be connected to the renderer: resetRectsForMonth() to rectForDatesRestart, addRectForDate() to rectForDateFound,
/// resetRectsForTitleLine() to hasTitleLineMayHaveChanged. Artwork in SVG has its own day elements instead.
///
/// The cells are children of the canvas item and go with it; the manager is its child, too.
class MVCALENDARWIDGETS_EXPORT MvGraphicsItemCalendariumCellsManager : public QObject
{
    Q_OBJECT

public:
    /// The canvas item of the calendarium, and the session whose entries it shows.
    explicit MvGraphicsItemCalendariumCellsManager(QGraphicsObject *parent,
                                                   MvSession &session = MvSession::defaultSession());
    ~MvGraphicsItemCalendariumCellsManager() override;

    /// Removes all cells when the date is another one.
    void setStartDate(const QDate &date);
    /// Whose holidays and entries the menu and the descriptions tell.
    void setHolidayConfig(const MvCalendariumHolidayConfig &config) { m_holidayConfig = config; }
    /// Cells that are not editable are invisible and open nothing.
    void setEditable(bool editable);
    bool isEditable() const { return m_isEditable; }
    /// With a single thing to choose, a click does it without showing the menu. The menu is shown unless told
    /// otherwise.
    void setMenuForOneEntry(bool shown) { m_hasMenuForOneEntry = shown; }
    /// What a click on a day opens in place of the menu; called with the date and a point of the screen. The menu
    /// itself is still to be had by customEntryMenuForHoveredDate(). None, as at first: the menu.
    using DayOpener = std::function<void(const QDate &date, const QPoint &source)>;
    void setDayOpener(const DayOpener &open) { m_openDay = open; }

    /// Of all cells so far, in the item's units, cut to a whole number.
    int smallestWidth() const { return int(m_smallestWidth); }
    /// Invalid when the mouse is over no cell; also from when that cell goes, or nothing can be edited.
    QDate hoveredDate() const { return m_hoveredDate; }

    /// The cell of a date; null when the date has none.
    MvGraphicsItemCalendariumCell *cell(const QDate &date) const;
    /// Gives the date's cell the keyboard focus and brings it into view; false when it has no visible cell.
    bool focusDate(const QDate &date);

    /// A new menu for the date, which belongs to the caller; null when not editable.
    QMenu *customEntryMenuForHoveredDate(const QDate &date);
    /// A new menu with an action for each entry of the day and one for a new entry; belongs to the caller.
    QMenu *createCustomEntryMenu(const QDate &date, const MvCalendariumHolidayConfig &config);

    /// Finds the dates of the range among the elements of artwork ("child_Day_2027-06-05") that is shown in the
    /// rectangle.
    void detectCellBoundingBoxes(const MvDateRange &range, QSvgRenderer *renderer, Qt::AspectRatioMode mode,
                                 const QRectF &rect);
    /// From the artwork's view box to the rectangle; what is kept in proportion is centred.
    static QTransform createSvg2SceneMatrix(const QRectF &viewBox, Qt::AspectRatioMode mode, const QRectF &rect);

    /// Opens the day editor for the entry, which may be new.
    MvCalendarDayEditorDialog *createAndStartCalendarDayEditorDialog(const MvCalendarEvent &event);

public Q_SLOTS:
    void resetRectsForMonth(const QDate &date, const QRectF &rect);
    void addRectForDate(const QDate &date, const QRectF &rect);
    void resetRectsForTitleLine(bool thereIsATitleLine);
    /// Opens the menu of the date near the screen position, soon.
    void showEntryForDate(const QDate &theDate, const QPoint &theSource);
    void updateLastHoveredDate(const QDate &date);
    /// Gives the photo to the day's only entry; otherwise opens the day editor for a new one with the photo.
    void takeFotoForDate(const QDate &date, const MvFoto &foto);

Q_SIGNALS:
    /// The day editor opens for the entry.
    void showEvent(MvCalendarEvent theCalendarEvent);
    void smallestWidthChanged();
    /// An entry may have changed.
    void eventChanged();

private:
    MvGraphicsItemCalendariumCell *findCell(const QDate &date);
    MvGraphicsItemCalendariumCell *createCell(const QDate &date);
    void remove(MvGraphicsItemCalendariumCell *cell);
    void endHover(MvGraphicsItemCalendariumCell *cell);
    void removeKeys(const QDate &month);
    MvDayMenu *createMenu(const QDate &date, const MvCalendariumHolidayConfig &config);
    void showEntryForDateInternal();
    MvCalendariumContentConfig configOf(const QDate &date) const { return {date, m_holidayConfig}; }
    QString describe(const QDate &date) const;
    QWidget *view() const;

    MvSession &m_session;
    QGraphicsObject *m_parent;
    QHash<QDate, QPointer<MvGraphicsItemCalendariumCell>> m_cells;
    MvCalendariumHolidayConfig m_holidayConfig;
    QRectF m_rect;
    QDate m_startDate;
    bool m_hasTitleLine = false;
    double m_smallestWidth = std::numeric_limits<int>::max();
    QTimer m_menuTimer;
    QDate m_menuDate;
    QPoint m_menuPos;
    DayOpener m_openDay;
    QDate m_hoveredDate;
    bool m_isEditable = true;
    bool m_hasMenuForOneEntry = true;
};
