// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvColorSelectionButton.h"

#include "MvGUIWidgets/MvColorPalettePopup.h"
#include "MvGUIWidgets/MvColorSwatch.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

MvColorSelectionButton::MvColorSelectionButton(bool alphaAllowed, QWidget *parent)
    : QPushButton(parent)
    , m_alphaAllowed(alphaAllowed)
{
    setAutoDefault(false);
    setColor(Qt::white);
    connect(this, &QPushButton::clicked, this, &MvColorSelectionButton::openPalette);
}

MvColorSelectionButton::~MvColorSelectionButton() = default;

void MvColorSelectionButton::setColor(const QColor &color)
{
    m_color = color;
    setToolTip(MvColorSwatch::name(color));
    setAccessibleDescription(MvColorSwatch::name(color));
    update();
}

QSize MvColorSelectionButton::sizeHint() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int height = fontMetrics().height();
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, QSize(height * 4, height), this);
}

void MvColorSelectionButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const int margin = qMax(4, height() / 5);
    if (!isEnabled())
        painter.setOpacity(0.4);
    MvColorSwatch::paint(painter, rect().adjusted(margin, margin, -margin, -margin), m_color, palette());
    painter.setOpacity(1.0);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

void MvColorSelectionButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        click();
        break;
    default:
        QPushButton::keyPressEvent(event);
    }
}

void MvColorSelectionButton::openPalette()
{
    auto *palette = new MvColorPalettePopup(this, m_color, m_usedColors, m_alphaAllowed);
    connect(palette, &MvColorPalettePopup::colorChosen, this, &MvColorSelectionButton::takeChosenColor);
    palette->openAt(rect());
}

void MvColorSelectionButton::takeChosenColor(const QColor &color)
{
    if (color == m_color)
        return;
    setColor(color);
    Q_EMIT colorChanged(color);
}
