// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvFoto/MvFoto.h"

#include <QDate>
#include <QGraphicsObject>
#include <QPoint>
#include <QRectF>
#include <QString>
#include <QTimer>

#include <functional>

class QPropertyAnimation;

/// A transparent field over one date of a calendarium on the canvas: shows itself under the mouse, answers a click
/// (a double click is left to the canvas), takes a photo and is reached by keyboard and screen reader.
///
/// It can hold the keyboard focus; a mouse click leaves the keys to what lies below. Arrow keys move by days and
/// weeks, Enter and Space do what a click does, Escape goes back to the calendarium.
///
/// Painted only where a painter's rule says that a person is working on the output (MvRenderingRule).
class MVCALENDARWIDGETS_EXPORT MvGraphicsItemCalendariumCell : public QGraphicsObject
{
    Q_OBJECT

public:
    MvGraphicsItemCalendariumCell(const QDate &date, QGraphicsItem *parent);
    ~MvGraphicsItemCalendariumCell() override;

    QDate date() const { return m_date; }
    void setBoundingRect(const QRectF &rect);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

    /// As when the mouse leaves.
    void endHover();
    /// The press was none of a click: something is dragged from here.
    void cancelClick();
    /// Opens the day's menu, as a click does, below the cell.
    void press();
    bool hasKeyboardFocus() const { return m_hasKeyboardFocus && hasFocus(); }

    /// "Samstag, 5. Juni 2027"
    QString accessibleName() const;
    /// What is on the day; empty until it is set.
    QString accessibleDescription() const { return m_describe ? m_describe(m_date) : QString(); }
    void setDescriber(const std::function<QString(const QDate &)> &describe) { m_describe = describe; }
    /// On the screen, in the scene's first view; empty when no view shows it.
    QRect screenRect() const;

Q_SIGNALS:
    void dateClicked(const QDate &theDate, const QPoint &theSource);
    /// An invalid date when the mouse leaves.
    void hoveredDate(const QDate &date);
    void fotoDropped(const QDate &date, const MvFoto &foto);
    /// The keyboard wants to go on to another date.
    void focusRequested(const QDate &date);

public Q_SLOTS:
    void onDataClicked();

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent *event) override;
    void dragLeaveEvent(QGraphicsSceneDragDropEvent *event) override;
    void dropEvent(QGraphicsSceneDragDropEvent *event) override;

private:
    void fade(bool in);
    void showFocus(bool on);
    bool goByKey(int key);

    QDate m_date;
    QRectF m_boundingRect;
    QTimer m_clickTimer;
    int m_pressCount = 0;
    QPoint m_pressScreenPos;
    QPointF m_pressItemPos; // of the cell in the scene: a drag moves it
    QPropertyAnimation *m_fade = nullptr;
    bool m_hasKeyboardFocus = false;
    std::function<QString(const QDate &)> m_describe;
};
