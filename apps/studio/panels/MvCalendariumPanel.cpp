// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCalendariumPanel.h"

#include "pages/MvFrameEdits.h"
#include "pages/MvPageSelection.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvGUIWidgets/MvMouseWheelEventFilter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

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
    for (QComboBox *box : {m_month, m_layout})
        box->installEventFilter(new MvMouseWheelEventFilter(box));
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
    const MvPageElement element = page.elementsOn(edits()->document().format()).value(m_selection->element());
    if (m_selection->kind() != MvPageSelection::Kind::Calendarium || !element.calendarium())
        return;
    const MvCalendariumElement &shown = *element.calendarium();
    m_month->setCurrentIndex(m_month->findData(shown.monthOffset()));
    m_layout->setCurrentIndex(qMax(0, m_layout->findData(shown.layout())));
    m_line->setChecked(shown.hasMonthLine());
    m_onFoto->setChecked(shown.isOnFoto());
    const bool isFree = MvFrameEdits::isFree(page, m_selection->element());
    for (QWidget *control : std::initializer_list<QWidget *>{m_month, m_layout, m_line, m_onFoto})
        control->setEnabled(isFree);
}

void MvCalendariumPanel::edit(const Edit &edit, const QString &text)
{
    const int number = m_selection->element();
    MvPageElement element = edits()->page().elementsOn(edits()->document().format()).value(number);
    if (isShowing() || !element.calendarium())
        return;
    MvCalendariumElement changed = *element.calendarium();
    edit(changed);
    element.setContent(changed);
    edits()->editCurrent([&](MvCalendarPage &page) { page.setElement(number, element); }, text);
}
