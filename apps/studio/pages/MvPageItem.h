// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvCalendarPage.h"

#include <QBasicTimer>
#include <QDate>
#include <QGraphicsObject>
#include <QHash>
#include <QPixmap>
#include <QTransform>

#include <memory>
#include <optional>

class MvFotoPages;
class MvGraphicsItemCalendariumCellsManager;
class MvProject;
class MvScreenFotos;

/// A page of the open project as it will be printed, live: its paper with a shadow, ground, photo and calendarium. Its
/// units are those of the page, tenths of a millimetre from the trimmed corner; the bleed is not shown.
///
/// The calendarium is recorded when something changed, once for all changes of a turn of the event loop. Painting only
/// replays, and replays only what is not in its cache of device pixels.
class MvPageItem : public QGraphicsObject
{
    Q_OBJECT

public:
    /// The project is not owned and must outlive the item.
    explicit MvPageItem(MvProject *project, QGraphicsItem *parent = nullptr);
    ~MvPageItem() override;

    /// The page's number, counted from 0; without such a page nothing is shown.
    int page() const { return m_page; }
    void setPage(int page);
    /// What is shown: the project's page, or the one that a gesture tries out.
    const MvCalendarPage &shownPage() const { return m_shown; }
    /// Shows another state of the page than the project's until the next call; no value ends it.
    void setTrial(const std::optional<MvCalendarPage> &page);

    QRectF pageRect() const { return m_pageRect; }
    /// Everything that stands on the page as it is shown, in reading order: their places are their numbers.
    const QList<MvPageElement> &elements() const { return m_elements; }
    /// The first photo's part of the trimmed page; empty without a photo.
    QRectF fotoRect() const;
    /// The element's frame if it is one for photos; null otherwise.
    const MvFotoElement *foto(int element) const;
    /// The day whose room is at a point of the item: its cell, or its row in a list; an invalid date when there is
    /// none.
    QDate dateAt(const QPointF &point) const;
    /// Empty for a date that the page does not show.
    QRectF dateRect(const QDate &date) const { return m_dates.value(date); }
    QList<QDate> dates() const; ///< in their order

    /// How large the page is shown at most, for the photos of entries in the recording; smaller values change nothing.
    void setPixelsPerUnit(double pixels);

    /// Records what changed now, instead of on the next turn of the event loop.
    void refreshNow();
    /// Has the page's photos decoded for the pixels that the transform leads to, before they are painted: they are what
    /// takes longest until a page is sharp.
    void askForFotos(const QTransform &toPixels) const;
    const MvPaintRecording &recording() const { return m_recording; }
    MvGraphicsItemCalendariumCellsManager *cells() const { return m_cells.get(); }
    MvScreenFotos *fotos() const { return m_fotos.get(); }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public Q_SLOTS:
    /// Has everything recorded anew.
    void refresh();

Q_SIGNALS:
    /// The page has been recorded; its rectangles are those of its present state.
    void refreshed();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Cache
    {
        QPixmap pixels;
        QTransform transform; // from the item to pixels, whole pixels of translation taken out
        QRect rect;           // of the pixels, relative to those
    };

    void takePage();
    void record();
    void addDate(const QDate &date, const QRectF &rect);
    void removeOutdatedCells();
    void discardCache();
    void paintInto(QPainter &painter, double pixelRatio) const;
    void paintShadow(QPainter &painter) const;
    void paintFotos(QPainter &painter, double pixelRatio) const;

    MvProject *m_project;
    std::unique_ptr<MvScreenFotos> m_fotos;
    std::unique_ptr<MvFotoPages> m_entryFotos;
    std::unique_ptr<MvGraphicsItemCalendariumCellsManager> m_cells;
    MvCalendarPage m_shown;
    std::optional<MvCalendarPage> m_trial;
    QList<MvPageElement> m_elements;
    MvCalendarPage m_cellsPage; // what the cells were placed for
    QRectF m_pageRect;
    MvPaintRecording m_recording;
    QHash<QDate, QRectF> m_dates;
    Cache m_cache;
    QBasicTimer m_timer;
    double m_pixelsPerUnit = 0.5;
    int m_page = 0;
};
