// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoDelegateEditorWidget.h"

#include "MvCalendar/MvCalendarEventFotoIntake.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvEntryEdits.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvFoto/MvMediaFormat.h"
#include "MvGUIWidgets/MvIconRegistry.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 16;
constexpr int spaceBetweenButtons = 2;

void setTexts(QToolButton *button, const QString &toolTip, const QString &accessibleName)
{
    button->setToolTip(toolTip);
    button->setAccessibleName(accessibleName);
}

} // namespace

MvCalendarEventFotoDelegateEditorWidget::MvCalendarEventFotoDelegateEditorWidget(const MvCalendarEvent &event,
                                                                                 QWidget *parent, MvSession &session)
    : QWidget(parent)
    , m_session(session)
    , m_changeButton(createButton(u"changeImageButton"_s, u"ico_common_photo"_s))
    , m_removeButton(createButton(u"removeImageButton"_s, u"ico_common_delete"_s))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(spaceBetweenButtons);
    layout->addStretch();
    layout->addWidget(m_changeButton);
    layout->addWidget(m_removeButton);
    layout->addStretch();
    connect(m_changeButton, &QToolButton::clicked, this,
            &MvCalendarEventFotoDelegateEditorWidget::onChangeImageButtonClicked);
    connect(m_removeButton, &QToolButton::clicked, this,
            &MvCalendarEventFotoDelegateEditorWidget::onRemoveImageButtonClicked);
    setCalendarEvent(event);
}

MvCalendarEventFotoDelegateEditorWidget::~MvCalendarEventFotoDelegateEditorWidget() = default;

QToolButton *MvCalendarEventFotoDelegateEditorWidget::createButton(const QString &name, const QString &icon)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    button->setIcon(MvIconRegistry::instance().icon(icon));
    button->setIconSize({iconSize, iconSize});
    button->setFocusPolicy(Qt::NoFocus); // by keyboard, the table's cursor does the same
    if (button->icon().isNull())
        button->setText(u"…"_s);
    return button;
}

void MvCalendarEventFotoDelegateEditorWidget::setCalendarEvent(const MvCalendarEvent &event)
{
    m_event = event;
    applyIcon();
}

void MvCalendarEventFotoDelegateEditorWidget::applyIcon()
{
    const bool hasFoto = m_event.foto().isValid();
    if (hasFoto)
        setTexts(m_changeButton, tr("Foto ändern…"), tr("Foto von „%1“ ändern").arg(m_event.description()));
    else
        setTexts(m_changeButton, tr("Foto hinzufügen…"), tr("Foto zu „%1“ hinzufügen").arg(m_event.description()));
    setTexts(m_removeButton, tr("Foto entfernen"), tr("Foto von „%1“ entfernen").arg(m_event.description()));
    m_removeButton->setVisible(hasFoto);
}

void MvCalendarEventFotoDelegateEditorWidget::requestFoto(const MvCalendarEvent &event, QWidget *asker,
                                                          const MvCalendarEventFotoIntake::Use &use, MvSession &session)
{
    const QString filter = tr("Fotos (%1)").arg(MvMediaFormat::namePatterns());
    const auto take = [event, asker, use, &session](const QString &fileName) {
        if (fileName.isEmpty())
            return;
        const MvFoto foto{QFileInfo(fileName)};
        if (!foto.mediaFormat().isValid()) {
            MvDiskAccessRequest::instance().readFotoFailed(fileName, asker);
            return;
        }
        MvCalendarEventFotoIntake::take(event, foto, asker, use, session);
    };
    MvDiskAccessRequest::instance().requestOpenFile(MvDiskAccessRequest::FotoFile, tr("Foto auswählen"), filter, asker,
                                                    take);
}

void MvCalendarEventFotoDelegateEditorWidget::onChangeImageButtonClicked()
{
    // the buttons may be gone, with the mouse, when the user has chosen
    const auto use = [self = QPointer(this), &session = m_session](const MvCalendarEvent &before,
                                                                   const MvCalendarEvent &after) {
        if (!self) {
            MvEntryEdits(session).push(new MvCalendarEventStep(before, after, session), after);
            return;
        }
        self->setCalendarEvent(after);
        Q_EMIT self->calendarEventChanged();
    };
    requestFoto(m_event, parentWidget() ? parentWidget() : this, use, m_session);
}

void MvCalendarEventFotoDelegateEditorWidget::onRemoveImageButtonClicked()
{
    m_event.setFoto(MvFoto());
    applyIcon();
    Q_EMIT calendarEventChanged();
}
