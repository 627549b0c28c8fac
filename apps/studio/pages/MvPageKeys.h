// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QObject>

class MvFotoHandle;
class MvPageCanvas;
class MvPageItem;
class QKeyEvent;

/// What the keys do on the canvas: they turn pages, go from day to day and on with the next page, and move the chosen
/// frames and what is seen of a photo.
class MvPageKeys : public QObject
{
    Q_OBJECT

public:
    /// None of them is owned; the canvas has selection, frames and scene.
    MvPageKeys(MvPageCanvas *canvas, MvPageItem *item, MvFotoHandle *fotos);

    /// False for a key that means nothing here and is left to the day that it is at.
    bool press(const QKeyEvent *event);

    /// The day that the keyboard is at; invalid when it is at none.
    QDate focusDate() const;
    /// False for a date that the page does not show: the keyboard is at none then.
    bool setFocusDate(const QDate &date);
    /// The keyboard has come to the canvas: back to its day, else to the first one.
    void enter();
    /// Takes the day up again whose cell has been replaced by a new one.
    void follow();

private:
    bool pressArrow(const QKeyEvent *event);
    void pressEscape();
    bool beginAtFirstDate();
    bool turnPageByArrow(int key);
    bool moveFrames(const QKeyEvent *event);

    MvPageCanvas *m_canvas;
    MvPageItem *m_item;
    MvFotoHandle *m_fotos;
    QDate m_date; // where the keyboard is, or will be when the page has cells again
};
