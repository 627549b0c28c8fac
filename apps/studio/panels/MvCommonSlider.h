// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSlider>

#include <functional>
#include <optional>

/// A slider for a value that several chosen elements may share. Where they differ it has no handle; moving it begins at
/// the value of the element that was chosen last, and gives the new one to all of them.
class MvCommonSlider : public QSlider
{
    Q_OBJECT

public:
    /// The names of its values are its tool tip.
    explicit MvCommonSlider(const std::function<QString(int)> &name, QWidget *parent = nullptr);

    /// The value that all have, or none, and that of the element that was chosen last. While somebody drags the handle,
    /// it is theirs.
    void show(const std::optional<int> &value, int last);
    bool isDifferent() const { return m_isDifferent; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setDifferent(bool isDifferent);

    std::function<QString(int)> m_nameOf;
    bool m_isDifferent = false;
};
