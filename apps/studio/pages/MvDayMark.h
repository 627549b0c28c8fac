// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QGraphicsObject>

class MvPageCanvas;

/// A frame around a day of the shown page that somebody looks for elsewhere: "here it is". It changes neither what is
/// chosen nor where the keyboard is, and goes when another page is shown or something is chosen on this one.
class MvDayMark : public QGraphicsObject
{
    Q_OBJECT

public:
    /// Belongs to the canvas's page.
    explicit MvDayMark(MvPageCanvas *canvas);

    /// Invalid while there is none.
    QDate date() const { return m_date; }
    /// Brings the day into sight; nowhere for an invalid date, and for one that the page does not show.
    void pointAt(const QDate &date);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF place() const;
    void reveal();

    MvPageCanvas *m_canvas;
    QDate m_date;
    bool m_isNew = false; // not brought into sight yet
};
