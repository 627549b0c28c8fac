// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QColor>
#include <QList>
#include <QPushButton>

/// A button that shows a colour and opens a palette to choose another one.
class MVGUIWIDGETS_EXPORT MvColorSelectionButton : public QPushButton
{
    Q_OBJECT

public:
    /// With `alphaAllowed` the colour may be translucent.
    explicit MvColorSelectionButton(bool alphaAllowed, QWidget *parent = nullptr);
    ~MvColorSelectionButton() override;

    /// White until one is set.
    QColor color() const { return m_color; }
    /// Emits nothing.
    void setColor(const QColor &color);
    /// Stand first in the palette.
    void setUsedColors(const QList<QColor> &colors) { m_usedColors = colors; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The user has chosen another colour.
    void colorChanged(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void openPalette();
    void takeChosenColor(const QColor &color);

    QColor m_color;
    QList<QColor> m_usedColors;
    bool m_alphaAllowed;
};
