// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumView.h"

#include <QDate>

class MvFotoBar;
class MvFotoHandle;
class MvFotoInvitation;
class MvFrameEdits;
class MvPageDrop;
class MvPageEntries;
class MvPageFoto;
class MvPageItem;
class MvPageKeys;
class MvPageSelection;
class MvProject;
class QMenu;

/// Shows a page of the open project and lets its dates and its photo be edited in place.
///
/// Zoom 1 shows the page as large as it is printed. Fitted, the page follows the size of the view until it is zoomed
/// otherwise.
class MvPageCanvas : public MvCalendariumView
{
    Q_OBJECT

public:
    static constexpr double minimumZoom = 0.05;
    static constexpr double maximumZoom = 8.0;

    /// The project is not owned and must outlive the canvas.
    explicit MvPageCanvas(MvProject *project, QWidget *parent = nullptr);
    ~MvPageCanvas() override;

    int currentPage() const;
    MvPageItem *pageItem() const { return m_item; }
    MvPageSelection *selection() const { return m_selection; }
    MvFrameEdits *frames() const { return m_frames; }
    MvPageEntries *entries() const { return m_entries; }
    /// Whether there is a photo that removePhoto() would take away.
    bool hasFoto() const;
    double zoom() const;
    bool isFitted() const { return m_isFitted; }

    /// The day that the keyboard is at; invalid when it is at none.
    QDate focusDate() const;
    /// False for a date that the page does not show: the keyboard is at none then.
    bool setFocusDate(const QDate &date);

    /// The menu for a point of the viewport: the day's entries and the page's photo. The caller shows and deletes it.
    QMenu *createContextMenu(const QPoint &position);

public Q_SLOTS:
    /// Clamped to the pages that there are.
    void setCurrentPage(int page);
    void nextPage();
    void previousPage();

    void zoomIn();
    void zoomOut();
    void zoomToFit();
    /// Clamped to the limits.
    void setZoom(double zoom);

    /// Asks for a file without blocking and puts it into the chosen frame, else into the page's first empty one.
    void chooseFoto();
    /// Puts a file there; one undo step.
    void setFoto(const QString &path);
    void removePhoto();
    /// The chosen photo, else the chosen frames: a photo goes first, its frame with the next key.
    void deleteChosen();
    /// Trim, bleed, safe margin and binding zone.
    void setPrintMarksShown(bool shown);
    /// Has the photos of the page in sight decoded before anything else.
    void askForFotos();

Q_SIGNALS:
    void currentPageChanged(int page);
    void zoomChanged(double zoom);
    /// Several photos, or folders, were dropped: into the frame and those that follow it.
    void fotosDropped(const QStringList &paths, int page, int element);
    /// Something worth a line in the status bar.
    void message(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void onDocumentReplaced();
    void onRefreshed();
    void applyPalette();
    void applyZoom(double zoom, const QPointF &fixedPoint);
    double fittingZoom() const;
    double pixelsPerUnit() const;
    void updateHand();
    QDate dateAt(const QPoint &position) const;
    QPointF onPage(const QPointF &position) const;
    void onSelectionChanged();
    void updateDescription();

    MvProject *m_project;
    QGraphicsScene *m_scene;
    MvPageItem *m_item;
    MvPageSelection *m_selection;
    MvPageFoto *m_foto;
    MvFrameEdits *m_frames;
    MvFotoHandle *m_fotoHandle;
    MvFotoBar *m_fotoBar;
    MvFotoInvitation *m_invitation;
    MvPageDrop *m_drop;
    MvPageEntries *m_entries;
    QGraphicsItem *m_printMarks;
    MvPageKeys *m_keys = nullptr;
    QPoint m_panFrom;
    bool m_isPanning = false;
    bool m_isSpaceDown = false;
    int m_wheelAngle = 0; // of a wheel that turns pages, less than a step
    bool m_isFitted = true;
};
