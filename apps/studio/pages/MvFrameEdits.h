// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"
#include "pages/MvFrameArrangement.h"

#include <QObject>

#include <functional>

class MvPageSelection;
class MvProject;
class QMenu;

/// What a person does to the chosen frames of the shown page, each as one undo step: puts new ones on it, copies,
/// removes, orders, moves and lines them up. What a page without a template shares between its photo and its
/// calendarium is no frame that could be moved, until freeFrames() has made it two.
class MvFrameEdits : public QObject
{
    Q_OBJECT

public:
    static constexpr double millimetre = 10.0; // in page units

    /// Neither is owned.
    MvFrameEdits(MvProject *project, MvPageSelection *selection, QObject *parent);

    /// Whether the element has a place of its own.
    static bool isFree(const MvCalendarPage &page, int element);
    /// The chosen elements that have one.
    QList<int> freeElements() const;
    /// The page's photo and calendarium could be made frames of their own.
    bool canFreeFrames() const;
    /// The rectangle of the element that panels show; empty when none is chosen.
    QRectF rect() const;
    /// Those of the chosen elements that have a place of their own.
    QList<QRectF> rects() const;
    /// A menu below the given one: for the element under the mouse, which is chosen first unless it is among those
    /// chosen already, and for new ones.
    void addActions(QMenu *parent, int element);
    /// Gives each of the chosen ones another rectangle; a step that merges with the one before.
    void changeRects(const std::function<QRectF(const QRectF &)> &change);

public Q_SLOTS:
    void addFoto();
    void addText();
    /// The next month, small, without the texts of its days.
    void addSmallMonth();
    void duplicate();
    void remove();
    void bringToFront();
    void sendToBack();
    void freeFrames();
    /// One frame is set in line with the field of the page, several with each other.
    void align(MvFrameArrangement::Line line);
    void distribute(Qt::Orientation orientation);
    /// Moves the chosen ones; a step that merges with the one before. False when none can be moved.
    bool moveBy(const QPointF &distance);
    /// Moves the lower right corner of each.
    bool growBy(const QPointF &distance);

Q_SIGNALS:
    void message(const QString &text);

private:
    using Arrange = std::function<QList<QRectF>(const QList<QRectF> &)>;

    MvCalendarPage page() const;
    QList<MvPageElement> elements() const;
    QRectF roomFor(int columns, int rows) const;
    void add(MvPageElement element, int columns, int rows, const QString &text);
    void change(const MvCalendarPage &after, const QString &text, int mergeId = -1);
    bool arrange(const Arrange &arrange, const QString &text, int mergeId = -1);
    void reorder(bool isToFront, const QString &text);

    MvProject *m_project;
    MvPageSelection *m_selection;
};
