// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "flows/MvPreviewSheets.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

class MvScreenFotos;
class QLabel;
class QPainter;
class QToolButton;

/// The sheets that come out of an export, small, one at a time: a page with its bleed, the line along which it is
/// cut and the marks of a print shop, or several pages with their marks; and a mark around the place that a list speaks
/// of.
class MvPagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit MvPagePreview(QWidget *parent = nullptr);
    ~MvPagePreview() override;

    /// The page that is shown stays, if it is one of them.
    void setExport(const MvCalendarDocument &document, const MvExportOptions &options);
    /// Leafs to the sheet with a page, if it is there.
    void showPage(int page);
    /// The first one on the sheet that is shown; -1 for none.
    int page() const { return m_sheets.at(m_index).page(); }
    /// The sheet that is shown, without what is drawn over it; null before it is painted.
    QImage picture() const { return m_image; }
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
    QImage pageImage(const MvSheetPlan::Part &part, double scale);
    void paintBleed(QPainter &painter, const MvSheetPlan::Part &part, const QImage &page) const;
    void paintMark(QPainter &painter, const QTransform &toSheet) const;
    QRect sheetRoom() const;

    MvCalendarDocument m_document;
    MvPreviewSheets m_sheets;
    int m_index = 0;
    int m_markedPage = -1;
    QRectF m_mark;
    MvScreenFotos *m_fotos;
    QImage m_image; // of the sheet
    QTimer m_later;
    QWidget *m_bar;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_name;
};
