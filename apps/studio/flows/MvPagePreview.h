// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

class MvScreenFotos;
class QLabel;
class QToolButton;

/// The pages that go to print, small, one at a time: with their bleed, the line along which it is cut, and a mark
/// around the place that a list speaks of.
class MvPagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit MvPagePreview(QWidget *parent = nullptr);
    ~MvPagePreview() override;

    /// The page that is shown stays, if it is one of them.
    void setPages(const MvCalendarDocument &document, const QList<int> &pages);
    void setBleed(double bleed);
    /// The parts of each page that become sheets, in page units: their edges are shown. None for whole pages.
    void setTiles(const QList<QRectF> &tiles);
    /// Leafs to a page, if it is there.
    void showPage(int page);
    int page() const { return m_pages.value(m_index, -1); }
    /// A rectangle of the page with the number, in page units.
    void mark(int page, const QRectF &rect);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void leaf(int by);
    void makeSoon();
    void make();
    QRect sheetRoom() const;

    MvCalendarDocument m_document;
    QList<int> m_pages;
    int m_index = 0;
    int m_markedPage = -1;
    QRectF m_mark;
    QList<QRectF> m_tiles;
    MvScreenFotos *m_fotos;
    QImage m_image; // with the bleed
    QTimer m_later;
    QWidget *m_bar;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_name;
};
