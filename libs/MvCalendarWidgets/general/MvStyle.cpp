// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvStyle.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QPainter>
#include <QStyleOption>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr double corner = 2.0; // the radius of Fusion's own outlines

/// The default button has the outline of the focus, too: Return presses it.
bool isDefaultButton(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

QColor outlineColor(const QStyleOption &option, bool showsFocus)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return option.palette.color(QPalette::Midlight);
    const bool hasFocus = showsFocus && option.state.testFlag(QStyle::State_HasFocus);
    return option.palette.color(hasFocus || isDefaultButton(option) ? QPalette::Highlight : QPalette::Mid);
}

void drawOutline(QPainter &painter, const QStyleOption &option, bool showsFocus, bool isRound = false)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outlineColor(option, showsFocus));
    painter.setBrush(Qt::NoBrush);
    const QRectF line = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound)
        painter.drawEllipse(line);
    else
        painter.drawRoundedRect(line, corner, corner);
    painter.restore();
}

} // namespace

MvStyle::MvStyle()
    : QProxyStyle(u"Fusion"_s)
{}

MvStyle::~MvStyle() = default;

void MvStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        drawOutline(*painter, *option, false);
        break;
    case PE_IndicatorRadioButton:
        drawOutline(*painter, *option, false, true);
        break;
    case PE_FrameLineEdit:
        drawOutline(*painter, *option, true);
        break;
    case PE_PanelButtonCommand:
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
            button == nullptr || !button->features.testFlag(QStyleOptionButton::Flat))
            drawOutline(*painter, *option, true);
        break;
    default:
        break;
    }
}

/// The row that is marked stands on the highlight: its icon takes the colour of the text there.
void MvStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    const auto *row = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const bool isMarked = row != nullptr && (element == CE_MenuItem || element == CE_MenuBarItem) &&
                          row->state.testFlag(State_Selected) && row->state.testFlag(State_Enabled);
    if (!isMarked || row->icon.isNull()) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    const int side = pixelMetric(PM_SmallIconSize, option, widget);
    const QPixmap light = row->icon.pixmap(QSize(side, side), painter->device()->devicePixelRatioF(), QIcon::Selected);
    QStyleOptionMenuItem marked = *row;
    marked.icon = QIcon();
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active})
        marked.icon.addPixmap(light, mode);
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

void MvStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                 const QWidget *widget) const
{
    if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option);
        control == CC_ToolButton && button != nullptr &&
        !button->features.testFlag(QStyleOptionToolButton::MenuButtonPopup)) {
        QStyleOptionToolButton plain = *button; // no menu arrow on buttons that only open a menu
        plain.features.setFlag(QStyleOptionToolButton::HasMenu, false);
        QProxyStyle::drawComplexControl(control, &plain, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) {
        const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
        if (box == nullptr || box->frame)
            drawOutline(*painter, *option, true);
    } else if (control == CC_SpinBox) {
        const auto *box = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
        if (box == nullptr || box->frame)
            drawOutline(*painter, *option, true);
    }
}

int MvStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                       QStyleHintReturn *returnData) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0; // the style's icons do not match the program's
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon MvStyle::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const
{
    switch (icon) {
    case SP_TitleBarCloseButton:
        return MvIconRegistry::instance().icon(u"ico_common_close"_s);
    case SP_TitleBarNormalButton:
        return MvIconRegistry::instance().icon(u"ico_common_float"_s);
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}
