// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QColor>
#include <QElapsedTimer>
#include <QFrame>
#include <QList>

class QAbstractButton;
class QGridLayout;
class QVBoxLayout;

/// A small palette to choose a colour from: the colours in use, tints that go together, and a dialog for any other.
///
/// It deletes itself when it has closed, or when the dialog that it opened has.
class MVGUIWIDGETS_EXPORT MvColorPalettePopup : public QFrame
{
    Q_OBJECT

public:
    /// `usedColors` stand first. With `alphaAllowed` colours may be translucent.
    MvColorPalettePopup(QWidget *parent, const QColor &current, const QList<QColor> &usedColors, bool alphaAllowed);

    /// Shows the palette below the rectangle of the parent, or above it where the screen ends. The keyboard starts at
    /// the present colour. The second click of a double click on what opened it does not close it.
    void openAt(const QRect &parentRect);

    /// The tints on offer, row by row.
    static QList<QColor> tints();
    static constexpr int columns = 8;

Q_SIGNALS:
    void colorChosen(const QColor &color);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void addUsedColors(QVBoxLayout *layout, const QList<QColor> &colors);
    void addSwatches(QGridLayout *grid, const QList<QColor> &colors);
    void addOtherChoices(QVBoxLayout *layout);
    void choose(const QColor &color);
    void openDialog();
    bool moveFocus(int key);

    QList<QAbstractButton *> m_choices; // swatches, then the buttons below them
    QColor m_current;
    bool m_alphaAllowed;
    bool m_dialogIsOpen = false;
    QElapsedTimer m_sinceOpened;
};
