// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvDayMenu.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProductBase/MvCalendariumContentConfig.h"

#include <QFontMetrics>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestName = 40; // widths of an average letter

/// The name as an action's text shows it: in one line, not too long, and its "&" is a letter.
QString shown(const QString &name, const QFontMetrics &metrics)
{
    QString text =
        metrics.elidedText(MvPrintableText::inShort(name), Qt::ElideRight, longestName * metrics.averageCharWidth());
    return text.replace(u'&', u"&&"_s);
}

} // namespace

MvDayMenu::MvDayMenu(const QDate &date, const MvCalendariumHolidayConfig &config, MvSession &session, QWidget *parent)
    : QMenu(tr("Eigene Einträge bearbeiten"), parent)
    , m_session(session)
{
    const MvCalendarEventList events = session.entries().events(MvCalendariumContentConfig(date, config));
    for (const MvCalendarEvent &event : events)
        addChoice(tr("„%1“ bearbeiten…").arg(shown(event.description(), fontMetrics())), event);
    addSeparator();
    const QString day = MvApplicationLocale::instance().locale().toString(date, u"d. MMM"_s);
    addChoice(tr("Neuen Eintrag am %1 erstellen…").arg(day), newEntryAt(date));
}

MvDayMenu::~MvDayMenu() = default;

void MvDayMenu::addChoice(const QString &text, const MvCalendarEvent &event)
{
    const QAction *action = addAction(MvIconRegistry::instance().icon(u"ico_calendarCustomEvents"_s), text);
    connect(action, &QAction::triggered, this, [this, event] {
        const MvCalendarEvent present = event.isValid() ? m_session.entries().presentEvent(event) : event;
        if (present.isValid() || !event.isValid())
            Q_EMIT entryChosen(present);
    });
}

QList<QAction *> MvDayMenu::choices() const
{
    QList<QAction *> choices = actions();
    choices.removeIf([](const QAction *action) { return action->isSeparator(); });
    return choices;
}

MvCalendarEvent MvDayMenu::newEntryAt(const QDate &date)
{
    return {{}, MvCalendarEvent::startOf(date), true, MvFoto(), QUuid::createUuid(), QDateTime::currentDateTime()};
}
