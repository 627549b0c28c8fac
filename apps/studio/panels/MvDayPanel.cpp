// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvDayPanel.h"

#include "pages/MvPageSelection.h"
#include "panels/MvOwnEntriesSwitch.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvDayMenu.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvUndoController.h"
#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvPaint/MvPrintableText.h"

#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvDayPanel::MvDayPanel(MvPageEdits *edits, MvPageSelection *selection, MvProject *project, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_selection(selection)
    , m_list(new QListWidget(this))
    , m_edit(new QPushButton(tr("Ändern …"), this))
    , m_remove(new QPushButton(tr("Löschen"), this))
{
    setObjectName(u"dayPanel"_s);
    m_list->setObjectName(u"dayEntries"_s);
    m_list->setAccessibleName(tr("Einträge des Tages"));
    auto *add = new QPushButton(tr("Neuer Eintrag …"), this);
    add->setObjectName(u"dayAdd"_s);
    m_edit->setObjectName(u"dayEdit"_s);
    m_remove->setObjectName(u"dayRemove"_s);
    auto *buttons = new MvFlowLayout;
    for (QPushButton *button : {add, m_edit, m_remove})
        buttons->addWidget(button);
    panelLayout()->addWidget(m_list, 1);
    panelLayout()->addLayout(buttons);
    panelLayout()->addWidget(new MvOwnEntriesSwitch(project, this));
    connect(add, &QPushButton::clicked, this, [this] { openEditor(MvDayMenu::newEntryAt(m_selection->date())); });
    connect(m_edit, &QPushButton::clicked, this, &MvDayPanel::editCurrent);
    connect(m_remove, &QPushButton::clicked, this, &MvDayPanel::removeCurrent);
    connect(m_list, &QListWidget::itemActivated, this, &MvDayPanel::editCurrent);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        m_edit->setEnabled(row >= 0);
        m_remove->setEnabled(row >= 0);
    });
    connect(selection, &MvPageSelection::changed, this, &MvPagePanel::renew);
    connect(&edits->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvPagePanel::renew);
}

void MvDayPanel::showPage()
{
    const QDate date = m_selection->date();
    const MvCalendariumContentConfig day(date, edits()->page().contentConfig().holidayConfig());
    m_events = date.isValid() ? edits()->session().entries().events(day) : MvCalendarEventList();
    const int row = m_list->currentRow();
    m_list->clear();
    for (const MvCalendarEvent &event : std::as_const(m_events))
        m_list->addItem(MvPrintableText::inShort(event.description()));
    m_list->setCurrentRow(qBound(-1, qMax(row, 0), m_list->count() - 1));
    m_edit->setEnabled(m_list->currentRow() >= 0);
    m_remove->setEnabled(m_list->currentRow() >= 0);
}

void MvDayPanel::openEditor(const MvCalendarEvent &event)
{
    MvCalendarDayEditorDialog::createSelfDeleting(nullptr, edits()->session())->openDayEditorSeries(event);
}

void MvDayPanel::editCurrent()
{
    const MvCalendarEvent event = m_events.value(m_list->currentRow());
    const MvCalendarEvent present = edits()->session().entries().presentEvent(event);
    if (present.isValid())
        openEditor(present);
}

void MvDayPanel::removeCurrent()
{
    const MvCalendarEvent present = edits()->session().entries().presentEvent(m_events.value(m_list->currentRow()));
    if (present.isValid())
        edits()->session().undo().push(
            new MvUndoCommandCalendarEvent(present, MvCalendarEvent(), nullptr, edits()->session()));
}
