// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCommonNumberBox.h"

#include "panels/MvCommonValue.h"

#include <QSignalBlocker>

MvCommonNumberBox::MvCommonNumberBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setKeyboardTracking(false); // a typed number counts when it is complete
    connect(this, &QDoubleSpinBox::valueChanged, this, &MvCommonNumberBox::take);
}

void MvCommonNumberBox::setLimits(double least, double most)
{
    m_least = least;
    m_most = most;
    setDifferent(m_isDifferent);
}

void MvCommonNumberBox::show(const std::optional<double> &number, double last)
{
    const QSignalBlocker quiet(this);
    m_last = last;
    setDifferent(!number);
    if (number)
        setValue(*number);
}

/// That they differ is a number below all others, which is shown as a word.
void MvCommonNumberBox::setDifferent(bool isDifferent)
{
    const QSignalBlocker quiet(this);
    m_isDifferent = isDifferent;
    setSpecialValueText(isDifferent ? MvCommonValue::different() : QString());
    setRange(isDifferent ? m_least - 1.0 : m_least, m_most);
    if (isDifferent)
        setValue(minimum());
}

void MvCommonNumberBox::stepBy(int steps)
{
    if (m_isDifferent)
        take(m_last);
    else
        QDoubleSpinBox::stepBy(steps);
}

void MvCommonNumberBox::take(double number)
{
    const double possible = qBound(m_least, number, m_most);
    if (m_isDifferent) {
        m_isDifferent = false; // the range follows with what is shown next: somebody may be typing
        const QSignalBlocker quiet(this);
        if (value() < m_least)
            setValue(possible);
    }
    Q_EMIT entered(possible);
}

void MvCommonNumberBox::focusInEvent(QFocusEvent *event)
{
    QDoubleSpinBox::focusInEvent(event);
    if (m_isDifferent)
        selectAll(); // what is typed takes the place of the word
}
