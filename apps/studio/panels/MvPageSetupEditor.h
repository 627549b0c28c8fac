// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QWidget>

class MvSpinBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

/// Paper, orientation, bleed, binding and months of a calendar.
class MvPageSetupEditor : public QWidget
{
    Q_OBJECT

public:
    static constexpr int mostMonths = 36;

    explicit MvPageSetupEditor(QWidget *parent = nullptr);

    void setFormat(const MvPageFormat &format);
    MvPageFormat format() const;

    /// Its first month and the number of months count.
    void setRange(const MvDateRange &range);
    MvDateRange range() const;

    /// Hides the first month where the surroundings ask for it.
    void setStartVisible(bool visible);
    /// Labels without keys of their own (Alt and a letter), where they would collide with others.
    void removeAccessKeys();

Q_SIGNALS:
    void changed();

private:
    void addPaper();
    void addBinding();
    void addMonths();
    void onChanged();
    bool isOwnPaper() const;

    QComboBox *m_month;
    MvSpinBox *m_year;
    MvSpinBox *m_months;
    QLabel *m_until;
    QComboBox *m_paper;
    QComboBox *m_orientation;
    QDoubleSpinBox *m_width;
    QDoubleSpinBox *m_height;
    QDoubleSpinBox *m_bleed;
    QComboBox *m_binding;
    QDoubleSpinBox *m_bindingZone;
    double m_safeMargin = MvPageFormat::defaultSafeMargin; // is kept
};
