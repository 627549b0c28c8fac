// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumFontSettings.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QWidget>

class MvFontFamilyBox;
class QSpinBox;

/// The font of a calendarium: its family, and how large the texts of cells and of holidays are.
class MVCALENDARWIDGETS_EXPORT MvCalendariumFontEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendariumFontEditor(QWidget *parent = nullptr);

    /// Shows the settings; every value that differs emits fontSettingsChanged().
    void setFontSettings(const MvCalendariumFontSettings &settings);
    /// What is shown; weight, capitalization and letter spacing are those of the settings last given.
    MvCalendariumFontSettings currentSettings() const;

    /// Shows so many letters of the family's name at least; 10 at first.
    void setFamilyLength(int letters);

Q_SIGNALS:
    void fontSettingsChanged(const MvCalendariumFontSettings &settings);

public Q_SLOTS:
    void somethingChanged();

private:
    MvFontFamilyBox *createFontFamilyComboBox();
    /// Percent of the layout's size: 100 changes nothing.
    QSpinBox *createFontSizeSpinBox(const QString &objectName, int percentage);

    MvCalendariumFontSettings m_settings;
    MvFontFamilyBox *m_familyBox;
    QSpinBox *m_sizeBox;
    QSpinBox *m_holidaySizeBox;
};
