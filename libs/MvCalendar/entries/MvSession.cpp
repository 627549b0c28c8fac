// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvSession.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include "MvCore/MvGeneralSettings.h"
#include "MvCore/MvUndoController.h"
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"

#include <QUuid>

MvSession::MvSession()
    : m_ownUndo(std::make_unique<MvUndoController>())
    , m_ownEntries(std::make_unique<MvCalendarEventRegistry>(*m_ownUndo))
    , m_undo(*m_ownUndo)
    , m_entries(*m_ownEntries)
{
    m_ownEntries->setupInstance();
    // texts and artwork ask all registries by document: each session's is another one
    m_ownEntries->setActiveModelId(MvProjectIdentifier(QUuid::createUuid().toString(), true), true);
    MvSVGCompilerInstructionsFactory::instance().addHolidayCache(m_ownEntries.get());
}

MvSession::MvSession(MvUndoController &undo, MvCalendarEventRegistry &entries)
    : m_undo(undo)
    , m_entries(entries)
{}

MvSession::~MvSession() = default;

MvSession &MvSession::defaultSession()
{
    static MvSession *session = new MvSession(MvUndoController::instance(), MvCalendarEventRegistry::instance());
    return *session;
}

MvGeneralSettings &MvSession::settings() const
{
    return MvGeneralSettings::instance();
}
