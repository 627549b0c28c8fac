// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvRegionEditor.h"

#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

MvRegionEditor::MvRegionEditor(QWidget *parent)
    : QWidget(parent)
    , m_countries(MvCalendariumHolidayCache::instance().availableLanguages())
    , m_country(new QComboBox(this))
    , m_region(new QComboBox(this))
    , m_hint(new QLabel(tr("Ferien und regionale Feiertage stehen erst da, wenn eine Region gewählt ist."), this))
{
    m_country->setObjectName(u"country"_s);
    for (const MvLocale &country : std::as_const(m_countries))
        m_country->addItem(country.visibleName());
    m_region->setObjectName(u"region"_s);
    m_hint->setObjectName(u"regionHint"_s);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    auto *form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Land:"), m_country);
    form->addRow(tr("Re&gion:"), m_region);
    form->addRow(m_hint);
    MvFormFields::keepWheelOut({m_country, m_region});
    for (QComboBox *box : {m_country, m_region}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(12);
    }
    connect(m_country, &QComboBox::currentIndexChanged, this, [this] {
        fillRegions({});
        Q_EMIT countryChanged();
    });
    connect(m_region, &QComboBox::currentIndexChanged, this,
            [this] { m_hint->setVisible(m_region->isEnabled() && m_region->currentData().toString().isEmpty()); });
    setConfig(m_given);
}

void MvRegionEditor::setConfig(const MvCalendariumHolidayConfig &config)
{
    m_given = config;
    m_country->setCurrentIndex(int(m_countries.indexOf(config.language())));
    fillRegions(config.province());
}

MvCalendariumHolidayConfig MvRegionEditor::config() const
{
    MvCalendariumHolidayConfig config = m_given;
    if (m_country->currentIndex() >= 0)
        config.setLanguage(m_countries.at(m_country->currentIndex()));
    config.setProvince(m_region->currentData().toString());
    return config;
}

void MvRegionEditor::fillRegions(const QString &chosen)
{
    const MvLocale country = m_countries.value(m_country->currentIndex());
    const auto &calculator = MvCalendariumHolidayCalculator::instance();
    m_region->clear();
    m_region->addItem(tr("Ganzes Land"), QString());
    for (const QString &code : MvCalendariumHolidayCache::instance().availableProvinces(country))
        m_region->addItem(calculator.provinceName(country, code), code);
    m_region->setEnabled(m_region->count() > 1);
    const QString code = chosen.isEmpty() ? QString() : calculator.findProvince(country, chosen);
    m_region->setCurrentIndex(qMax(0, m_region->findData(code)));
    m_hint->setVisible(m_region->isEnabled() && m_region->currentIndex() == 0);
}
