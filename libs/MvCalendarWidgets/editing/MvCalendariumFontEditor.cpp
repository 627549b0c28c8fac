// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumFontEditor.h"

#include "MvGUIWidgets/MvFontFamilyBox.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvSpinBox.h"
#include "MvModelBase/MvFontTester.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int unchangedSize = 100; // percent

} // namespace

MvCalendariumFontEditor::MvCalendariumFontEditor(QWidget *parent)
    : QWidget(parent)
{
    m_familyBox = createFontFamilyComboBox();
    m_sizeBox = createFontSizeSpinBox(u"fontSizeBox"_s, m_settings.fontSizePercentage());
    m_holidaySizeBox = createFontSizeSpinBox(u"holidayFontSizeBox"_s, m_settings.fontSizePercentageHolidays());
    auto *sizeLabel = new QLabel(tr("Schriftgröße", "LABEL"), this);
    sizeLabel->setBuddy(m_sizeBox);
    auto *holidayLabel = new QLabel(tr("Schriftgröße Feiertage", "LABEL"), this);
    holidayLabel->setBuddy(m_holidaySizeBox);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_familyBox, 0, 0, 1, 2, Qt::AlignLeft);
    layout->addWidget(sizeLabel, 2, 0);
    layout->addWidget(m_sizeBox, 2, 1);
    layout->addWidget(holidayLabel, 3, 0);
    layout->addWidget(m_holidaySizeBox, 3, 1);
    layout->setColumnStretch(2, 1);
}

MvFontFamilyBox *MvCalendariumFontEditor::createFontFamilyComboBox()
{
    MvFontTester &tester = MvSingleton<MvFontTester>::instance();
    if (!tester.updateWasRun())
        tester.updateFonts();
    auto *box = new MvFontFamilyBox(tester.goodFonts(), this);
    box->setObjectName(u"fontFamilyBox"_s);
    box->setAccessibleName(tr("Schriftart"));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(10);
    MvFormFields::keepWheelOut({box});
    connect(box, &QComboBox::currentIndexChanged, this, &MvCalendariumFontEditor::somethingChanged);
    return box;
}

QSpinBox *MvCalendariumFontEditor::createFontSizeSpinBox(const QString &objectName, int percentage)
{
    auto *box = new MvSpinBox(this);
    box->setObjectName(objectName);
    box->setRange(30, 300);
    box->setSingleStep(10);
    box->setSuffix(tr(" %"));
    box->setValue(percentage + unchangedSize);
    MvFormFields::keepWheelOut({box});
    connect(box, &QSpinBox::valueChanged, this, &MvCalendariumFontEditor::somethingChanged);
    return box;
}

void MvCalendariumFontEditor::setFontSettings(const MvCalendariumFontSettings &settings)
{
    m_settings = settings;
    m_sizeBox->setValue(settings.fontSizePercentage() + unchangedSize);
    m_holidaySizeBox->setValue(settings.fontSizePercentageHolidays() + unchangedSize);
    m_familyBox->setFontFamily(settings.fontName());
}

MvCalendariumFontSettings MvCalendariumFontEditor::currentSettings() const
{
    return {m_familyBox->currentText(), m_sizeBox->value() - unchangedSize, m_holidaySizeBox->value() - unchangedSize,
            m_settings.weight(),        m_settings.capitalization(),        m_settings.letterSpacing()};
}

void MvCalendariumFontEditor::setFamilyLength(int letters)
{
    m_familyBox->setMinimumContentsLength(letters);
}

void MvCalendariumFontEditor::somethingChanged()
{
    Q_EMIT fontSettingsChanged(currentSettings());
}
