// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCommonSlider.h"

#include "panels/MvCommonValue.h"

#include <QStyleOptionSlider>
#include <QStylePainter>

MvCommonSlider::MvCommonSlider(const std::function<QString(int)> &name, QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
    , m_nameOf(name)
{
    connect(this, &QSlider::valueChanged, this, [this] { setDifferent(false); });
    connect(this, &QSlider::sliderPressed, this, [this] { setDifferent(false); });
}

void MvCommonSlider::show(const std::optional<int> &value, int last)
{
    if (isSliderDown())
        return;
    setValue(value.value_or(last));
    setDifferent(!value);
}

void MvCommonSlider::setDifferent(bool isDifferent)
{
    m_isDifferent = isDifferent;
    const QString text = isDifferent ? MvCommonValue::different() : m_nameOf(value());
    setToolTip(text);
    setAccessibleDescription(text);
    update();
}

void MvCommonSlider::paintEvent(QPaintEvent *event)
{
    if (!m_isDifferent) {
        QSlider::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove;
    option.sliderPosition = option.minimum; // else the groove would be filled up to there
    painter.drawComplexControl(QStyle::CC_Slider, option);
}
