// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvLeapDayHint.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvProject.h"

#include <QStringList>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostNames = 3;
constexpr qsizetype longestName = 60;

} // namespace

MvLeapDayHint::MvLeapDayHint(const MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    connect(&project->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvLeapDayHint::look);
    look();
}

void MvLeapDayHint::look()
{
    const auto before = m_known;
    m_known.clear();
    QStringList names;
    for (const MvCalendarEvent &event : m_project->session().entries().activeEventList()) {
        const QDate date = event.dateTime().date();
        if (date.month() != 2 || date.day() != 29 || !event.isByDayOfYear())
            continue;
        const auto key = qMakePair(event.uuid(), event.description());
        m_known.insert(key);
        if (!before.contains(key))
            names.append(MvPrintableText::inShort(event.description(), longestName));
    }
    if (names.isEmpty() || sender() == nullptr || !m_project->document().lacksLeapDay())
        return;
    const int count = int(names.size());
    const QString listed = names.mid(0, mostNames).join(u", "_s) + (count > mostNames ? u", …"_s : QString());
    const QString text = tr("Nur in Schaltjahren gedruckt, dieser Kalender hat keinen 29. Februar: %1").arg(listed);
    QTimer::singleShot(0, this, [this, text] { Q_EMIT message(text); }); // what the change itself tells comes before
}
