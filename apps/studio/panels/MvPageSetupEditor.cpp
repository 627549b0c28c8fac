// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvPageSetupEditor.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvSpinBox.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double tenths = 10.0; // of a millimetre
constexpr int earliestYear = 1900;
constexpr int latestYear = 2200;

QDoubleSpinBox *createLength(const QString &objectName, double least, double most, QWidget *parent)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setObjectName(objectName);
    box->setRange(least, most);
    box->setDecimals(1);
    box->setSuffix(MvPageSetupEditor::tr(" mm"));
    box->setKeyboardTracking(false);
    return box;
}

} // namespace

MvPageSetupEditor::MvPageSetupEditor(QWidget *parent)
    : QWidget(parent)
    , m_month(new QComboBox(this))
    , m_year(new MvSpinBox(this))
    , m_months(new MvSpinBox(this))
    , m_until(new QLabel(this))
    , m_paper(new QComboBox(this))
    , m_orientation(new QComboBox(this))
    , m_width(createLength(u"paperWidth"_s, 20.0, 3000.0, this))
    , m_height(createLength(u"paperHeight"_s, 20.0, 3000.0, this))
    , m_bleed(createLength(u"bleed"_s, 0.0, 20.0, this))
    , m_binding(new QComboBox(this))
    , m_bindingZone(createLength(u"bindingZone"_s, 0.0, 40.0, this))
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addMonths();
    addPaper();
    addBinding();
    setFormat(MvCalendarDocument().format());
    setRange(MvDateRange::createDefaultCalendarDateRange());

    for (QComboBox *box : {m_month, m_paper, m_orientation, m_binding})
        connect(box, &QComboBox::currentIndexChanged, this, &MvPageSetupEditor::onChanged);
    for (MvSpinBox *box : {m_year, m_months})
        connect(box, &MvSpinBox::valueChanged, this, &MvPageSetupEditor::onChanged);
    for (QDoubleSpinBox *box : {m_width, m_height, m_bleed, m_bindingZone})
        connect(box, &QDoubleSpinBox::valueChanged, this, &MvPageSetupEditor::onChanged);
    MvFormFields::keepWheelOut(
        {m_month, m_year, m_months, m_paper, m_orientation, m_width, m_height, m_bleed, m_binding, m_bindingZone});
}

void MvPageSetupEditor::addMonths()
{
    m_month->setObjectName(u"startMonth"_s);
    m_month->setAccessibleName(tr("Erster Monat"));
    const QLocale locale = MvApplicationLocale::instance().locale();
    for (int month = 1; month <= 12; ++month)
        m_month->addItem(locale.standaloneMonthName(month), month);
    m_year->setObjectName(u"startYear"_s);
    m_year->setAccessibleName(tr("Jahr des ersten Monats"));
    m_year->setRange(earliestYear, latestYear);
    m_months->setObjectName(u"monthCount"_s);
    m_months->setRange(1, mostMonths);
    m_until->setObjectName(u"lastMonth"_s);
    m_until->setForegroundRole(QPalette::PlaceholderText);

    auto *start = new QHBoxLayout;
    start->addWidget(m_month, 1);
    start->addWidget(m_year);
    auto *length = new QHBoxLayout;
    length->addWidget(m_months);
    length->addWidget(m_until, 1);
    auto *form = static_cast<QFormLayout *>(layout());
    auto *startLabel = new QLabel(tr("&Erster Monat:"), this);
    startLabel->setBuddy(m_month);
    form->addRow(startLabel, start);
    auto *lengthLabel = new QLabel(tr("&Monate:"), this);
    lengthLabel->setBuddy(m_months);
    form->addRow(lengthLabel, length);
}

void MvPageSetupEditor::addPaper()
{
    m_paper->setObjectName(u"paper"_s);
    for (const QString &name : MvPageFormat::names())
        m_paper->addItem(MvPageFormat::label(name), name);
    m_paper->addItem(tr("Eigenes Format"), QString());
    m_orientation->setObjectName(u"orientation"_s);
    m_orientation->addItem(tr("Querformat"), int(MvPageFormat::Orientation::Landscape));
    m_orientation->addItem(tr("Hochformat"), int(MvPageFormat::Orientation::Portrait));
    m_width->setAccessibleName(tr("Breite des Papiers"));
    m_height->setAccessibleName(tr("Höhe des Papiers"));
    m_bleed->setToolTip(tr("Was an jeder Kante über das fertige Blatt hinaus gedruckt und abgeschnitten wird"));

    auto *size = new QHBoxLayout;
    auto *times = new QLabel(u"×"_s, this);
    size->addWidget(m_width, 1);
    size->addWidget(times);
    size->addWidget(m_height, 1);
    auto *form = static_cast<QFormLayout *>(layout());
    form->addRow(tr("&Papier:"), m_paper);
    form->addRow(tr("Ausrich&tung:"), m_orientation);
    auto *sizeLabel = new QLabel(tr("Breite &und Höhe:"), this);
    sizeLabel->setBuddy(m_width);
    form->addRow(sizeLabel, size);
    form->addRow(tr("Bes&chnitt:"), m_bleed);
}

void MvPageSetupEditor::addBinding()
{
    m_binding->setObjectName(u"binding"_s);
    m_binding->addItem(tr("Keine"), int(MvPageFormat::Binding::None));
    m_binding->addItem(tr("Oben"), int(MvPageFormat::Binding::Top));
    m_binding->addItem(tr("Links"), int(MvPageFormat::Binding::Left));
    m_binding->addItem(tr("Rechts"), int(MvPageFormat::Binding::Right));
    m_binding->setToolTip(tr("Die Kante mit Spirale oder Aufhänger"));
    m_bindingZone->setAccessibleName(tr("Breite der Bindung"));
    m_bindingZone->setToolTip(tr("So breit bleibt die Kante frei von Texten und Kalender"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_binding, 1);
    row->addWidget(m_bindingZone, 1);
    auto *label = new QLabel(tr("Bin&dung:"), this);
    label->setBuddy(m_binding);
    static_cast<QFormLayout *>(layout())->addRow(label, row);
}

void MvPageSetupEditor::setFormat(const MvPageFormat &format)
{
    const QSizeF size = format.trimSize();
    int index = m_paper->count() - 1;
    for (int row = 0; row < m_paper->count() - 1; ++row) {
        MvPageFormat known = MvPageFormat::fromName(m_paper->itemData(row).toString());
        known.setOrientation(format.orientation());
        if (known.trimSize() == size)
            index = row;
    }
    m_paper->setCurrentIndex(index);
    m_orientation->setCurrentIndex(m_orientation->findData(int(format.orientation())));
    m_width->setValue(size.width() / tenths);
    m_height->setValue(size.height() / tenths);
    m_bleed->setValue(format.bleed() / tenths);
    m_binding->setCurrentIndex(m_binding->findData(int(format.binding())));
    m_bindingZone->setValue(format.bindingZone() / tenths);
    m_safeMargin = format.safeMargin();
    onChanged();
}

MvPageFormat MvPageSetupEditor::format() const
{
    const auto inTenths = [](double millimetres) { return std::round(millimetres * tenths); };
    MvPageFormat format = isOwnPaper() ? MvPageFormat(QSizeF(inTenths(m_width->value()), inTenths(m_height->value())))
                                       : MvPageFormat::fromName(m_paper->currentData().toString());
    if (!isOwnPaper())
        format.setOrientation(MvPageFormat::Orientation(m_orientation->currentData().toInt()));
    format.setBleed(inTenths(m_bleed->value()));
    format.setBinding(MvPageFormat::Binding(m_binding->currentData().toInt()));
    format.setBindingZone(inTenths(m_bindingZone->value()));
    format.setSafeMargin(m_safeMargin);
    return format;
}

void MvPageSetupEditor::setRange(const MvDateRange &range)
{
    if (!range.isValid())
        return;
    m_month->setCurrentIndex(range.start().month() - 1);
    m_year->setValue(range.start().year());
    m_months->setMaximum(qMax(mostMonths, range.monthCount())); // a longer one from elsewhere is not cut
    m_months->setValue(range.monthCount());
    onChanged();
}

MvDateRange MvPageSetupEditor::range() const
{
    const QDate start(m_year->value(), m_month->currentIndex() + 1, 1);
    return {start, start.addMonths(m_months->value()).addDays(-1)};
}

void MvPageSetupEditor::setStartVisible(bool visible)
{
    static_cast<QFormLayout *>(layout())->setRowVisible(0, visible);
}

void MvPageSetupEditor::removeAccessKeys()
{
    for (QLabel *label : findChildren<QLabel *>())
        label->setText(label->text().remove(u'&'));
}

void MvPageSetupEditor::onChanged()
{
    const QLocale locale = MvApplicationLocale::instance().locale();
    m_until->setText(tr("bis %1").arg(locale.toString(range().end(), u"MMMM yyyy"_s)));
    const bool isSquare = format().trimSize().width() == format().trimSize().height();
    if (isSquare && !isOwnPaper()) { // lies and stands at once
        const QSignalBlocker noOrientation(m_orientation);
        m_orientation->setCurrentIndex(m_orientation->findData(int(MvPageFormat::Orientation::Portrait)));
    }
    m_orientation->setEnabled(!isOwnPaper() && !isSquare);
    m_width->setEnabled(isOwnPaper());
    m_height->setEnabled(isOwnPaper());
    m_bindingZone->setEnabled(m_binding->currentData().toInt() != int(MvPageFormat::Binding::None));
    if (!isOwnPaper()) {
        const QSizeF size = format().trimSize();
        const QSignalBlocker noWidth(m_width);
        const QSignalBlocker noHeight(m_height);
        m_width->setValue(size.width() / tenths);
        m_height->setValue(size.height() / tenths);
    }
    Q_EMIT changed();
}

bool MvPageSetupEditor::isOwnPaper() const
{
    return m_paper->currentData().toString().isEmpty();
}
