// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventDelegateEditDeleteWidget.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventStep.h"

#include "MvCore/MvUndoController.h"
#include "MvGUIWidgets/MvIconRegistry.h"

#include <QHBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 18;
constexpr int spaceBetweenButtons = 4;
constexpr int sideMargin = 8;

} // namespace

MvCalendarEventDelegateEditDeleteWidget::MvCalendarEventDelegateEditDeleteWidget(const MvCalendarEvent &event,
                                                                                 QWidget *parent, MvSession &session)
    : QWidget(parent)
    , m_session(session)
    , m_event(event)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(spaceBetweenButtons);
    auto *editButton = createButton(u"editEventButton"_s, u"ico_common_edit"_s, tr("Eintrag bearbeiten"),
                                    tr("„%1“ bearbeiten").arg(event.description()));
    connect(editButton, &QToolButton::clicked, this, &MvCalendarEventDelegateEditDeleteWidget::onEditEventRequested);
    auto *deleteButton = createButton(u"deleteEventButton"_s, u"ico_common_delete"_s, tr("Eintrag löschen"),
                                      tr("„%1“ löschen").arg(event.description()));
    connect(deleteButton, &QToolButton::clicked, this,
            &MvCalendarEventDelegateEditDeleteWidget::onDeleteEventRequested);
    layout->addWidget(editButton);
    layout->addWidget(deleteButton);
}

MvCalendarEventDelegateEditDeleteWidget::~MvCalendarEventDelegateEditDeleteWidget() = default;

QToolButton *MvCalendarEventDelegateEditDeleteWidget::createButton(const QString &name, const QString &icon,
                                                                   const QString &text, const QString &accessibleName)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus); // by keyboard, the table's cursor does the same
    button->setIcon(MvIconRegistry::instance().icon(icon));
    button->setIconSize({iconSize, iconSize});
    button->setText(text);
    button->setToolButtonStyle(button->icon().isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
    button->setToolTip(text);
    button->setAccessibleName(accessibleName);
    return button;
}

void MvCalendarEventDelegateEditDeleteWidget::onEditEventRequested()
{
    MvCalendarDayEditorDialog::createSelfDeleting(nullptr, m_session)->openDayEditorSingle(m_event);
}

void MvCalendarEventDelegateEditDeleteWidget::onDeleteEventRequested()
{
    m_session.undo().push(new MvCalendarEventStep(m_event, MvCalendarEvent(), m_session));
}
