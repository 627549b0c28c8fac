// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvNewCalendarFlow.h"

#include "common/MvCalendarHabits.h"
#include "common/MvStudioSettings.h"
#include "flows/MvNewCalendarDialog.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

const QString kindKey = u"calendar/kind"_s; // of the last new calendar, as a number
const QString themeKey = u"calendar/theme"_s;

MvCalendarDraft draftOfHabits(MvCalendarKind kind)
{
    MvCalendarDocument habits;
    MvCalendariumHolidayConfig holidays = habits.holidayConfig();
    holidays.setProvince({}); // nobody has said where yet
    habits.setHolidayConfig(holidays);
    MvCalendarHabits::applyTo(habits);
    MvCalendarDraft draft;
    draft.kind = kind;
    draft.wanted.range = habits.range();
    draft.wanted.format = habits.format();
    draft.wanted.holidays = habits.holidayConfig();
    draft.wanted.themeId = MvNewCalendarFlow::lastTheme();
    return draft;
}

} // namespace

MvNewCalendarFlow::MvNewCalendarFlow(QWidget *window)
    : QObject(window)
    , m_window(window)
{}

QString MvNewCalendarFlow::lastTheme()
{
    return MvStudioSettings::text(themeKey);
}

void MvNewCalendarFlow::setLastTheme(const QString &id)
{
    MvStudioSettings::setText(themeKey, id);
}

void MvNewCalendarFlow::start()
{
    const int last = MvStudioSettings::text(kindKey).toInt();
    startKind(last >= 0 && last <= int(MvCalendarKind::Birthdays) ? MvCalendarKind(last) : MvCalendarKind::Fotos);
}

void MvNewCalendarFlow::startKind(MvCalendarKind kind)
{
    Q_EMIT leaveRequested([this, kind] { ask(kind); });
}

void MvNewCalendarFlow::ask(MvCalendarKind kind)
{
    if (m_dialog && m_dialog->isVisible()) // a double click asks twice
        return;
    auto *dialog = new MvNewCalendarDialog(draftOfHabits(kind), m_window);
    m_dialog = dialog;
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        const MvCalendarDraft draft = dialog->draft();
        const MvCalendarDocument document = draft.make();
        MvStudioSettings::setText(kindKey, QString::number(int(draft.kind)));
        setLastTheme(draft.wanted.themeId);
        MvCalendarHabits::remember(document);
        Q_EMIT wanted(document, dialog->fotoPaths());
    });
    dialog->open();
}
