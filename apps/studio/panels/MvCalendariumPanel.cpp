// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCalendariumPanel.h"

#include "pages/MvFrameEdits.h"
#include "pages/MvPageSelection.h"
#include "panels/MvCommonValue.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvGUIWidgets/MvFormFields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

MvCalendariumPanel::MvCalendariumPanel(MvPageEdits *edits, MvPageSelection *selection, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_selection(selection)
    , m_month(new QComboBox(this))
    , m_layout(new QComboBox(this))
    , m_line(new QCheckBox(tr("Mit der Zeile des Monats darüber"), this))
    , m_onFoto(new QCheckBox(tr("Steht auf einem Foto"), this))
{
    setObjectName(u"calendariumPanel"_s);
    m_month->setObjectName(u"calendariumMonth"_s);
    for (const auto &[text, offset] :
         {std::pair(tr("Monat der Seite"), 0), std::pair(tr("Voriger Monat"), -1), std::pair(tr("Nächster Monat"), 1),
          std::pair(tr("Übernächster Monat"), 2), std::pair(tr("Ein Jahr später"), 12)})
        m_month->addItem(text, offset);
    m_layout->setObjectName(u"calendariumLayout"_s);
    m_layout->addItem(tr("Layout der Seite"), QString());
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata())
        m_layout->addItem(schema.name(), schema.ID().toString());
    m_layout->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_line->setObjectName(u"calendariumLine"_s);
    m_onFoto->setObjectName(u"calendariumOnPhoto"_s);
    m_onFoto->setToolTip(tr("Darunter liegt dann ein Schleier, damit alles zu lesen ist"));

    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Monat:"), m_month);
    form->addRow(tr("Layout:"), m_layout);
    form->addRow(m_line);
    form->addRow(m_onFoto);
    QVBoxLayout *column = addScrollingColumn();
    column->addLayout(form);
    column->addStretch(1);
    MvFormFields::keepWheelOut({m_month, m_layout});
    connect(m_month, &QComboBox::activated, this, [this] {
        const int offset = m_month->currentData().toInt();
        edit([offset](MvCalendariumElement &one) { one.setMonthOffset(offset); }, tr("Monat wählen"));
    });
    connect(m_layout, &QComboBox::activated, this, [this] {
        const QString id = m_layout->currentData().toString();
        edit([&id](MvCalendariumElement &one) { one.setLayout(id); }, tr("Layout ändern"));
    });
    connect(m_line, &QCheckBox::clicked, this, [this](bool on) {
        edit([on](MvCalendariumElement &one) { one.setMonthLine(on); }, tr("Zeile des Monats ändern"));
    });
    connect(m_onFoto, &QCheckBox::clicked, this,
            [this](bool on) { edit([on](MvCalendariumElement &one) { one.setOnFoto(on); }, tr("Schleier ändern")); });
    connect(selection, &MvPageSelection::changed, this, &MvPagePanel::renew);
}

void MvCalendariumPanel::showPage()
{
    const MvCalendarPage page = edits()->page();
    const QList<MvPageElement> elements = page.elementsOn(edits()->document().format());
    const QList<int> numbers = m_selection->elementsOfKind();
    QList<MvCalendariumElement> shown;
    for (const int number : numbers) {
        const MvPageElement element = elements.value(number);
        if (element.calendarium())
            shown.append(*element.calendarium());
    }
    if (m_selection->kind() != MvPageSelection::Kind::Calendarium || shown.isEmpty())
        return;
    MvCommonValue::show(
        m_month, MvCommonValue::of(shown, [](const MvCalendariumElement &one) { return QVariant(one.monthOffset()); }));
    MvCommonValue::show(m_layout, MvCommonValue::of(shown, [this](const MvCalendariumElement &one) {
                            return m_layout->itemData(qMax(0, m_layout->findData(one.layout())));
                        }));
    MvCommonValue::show(m_line, MvCommonValue::of(shown, &MvCalendariumElement::hasMonthLine));
    MvCommonValue::show(m_onFoto, MvCommonValue::of(shown, &MvCalendariumElement::isOnFoto));
    const bool areFree = std::any_of(numbers.cbegin(), numbers.cend(),
                                     [&page](int number) { return MvFrameEdits::isFree(page, number); });
    for (QWidget *control : std::initializer_list<QWidget *>{m_month, m_layout, m_line, m_onFoto})
        control->setEnabled(areFree);
}

/// All chosen ones that have a place of their own, in one step.
void MvCalendariumPanel::edit(const Edit &edit, const QString &text)
{
    if (isShowing())
        return;
    const MvPageFormat format = edits()->document().format();
    edits()->editCurrent(
        [&](MvCalendarPage &page) {
            const QList<MvPageElement> elements = page.elementsOn(format);
            for (const int number : m_selection->elementsOfKind()) {
                MvPageElement element = elements.value(number);
                if (!element.calendarium() || !MvFrameEdits::isFree(page, number))
                    continue;
                MvCalendariumElement changed = *element.calendarium();
                edit(changed);
                element.setContent(changed);
                page.setElement(number, element);
            }
        },
        text);
}
