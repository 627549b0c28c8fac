// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDoubleSpinBox>

#include <optional>

/// A number that several chosen elements may share. Where they differ it says so; what is typed then goes to all of
/// them, and the first step gives all of them the number of the element that was chosen last.
class MvCommonNumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit MvCommonNumberBox(QWidget *parent = nullptr);

    /// What can be entered; in place of setRange().
    void setLimits(double least, double most);
    /// The number that all have, or none, and that of the element that was chosen last. Emits nothing.
    void show(const std::optional<double> &number, double last);
    bool isDifferent() const { return m_isDifferent; }

    void stepBy(int steps) override;

Q_SIGNALS:
    /// A person has entered a number.
    void entered(double number);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void setDifferent(bool isDifferent);
    void take(double number);

    double m_least = 0.0;
    double m_most = 0.0;
    double m_last = 0.0;
    bool m_isDifferent = false;
};
