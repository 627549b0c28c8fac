// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvEntriesPanel.h"

#include "panels/MvOwnEntriesSwitch.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvEntryList.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvProject.h"

#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype messageLetters = 60;

/// The days from the first of which on the calendar has the entry, ascending; of one that began before, the first day.
QList<QDate> daysIn(const MvDateRange &range, const MvCalendarEvent &event)
{
    QList<QDate> days;
    for (int year = range.start().year() - 1; year <= range.end().year(); ++year) {
        const QList<QDate> starts = event.startsInYear(year);
        for (const QDate &start : starts) {
            if (start <= range.end() && start.addDays(event.dayCount() - 1) >= range.start())
                days.append(std::max(start, range.start()));
        }
    }
    return days;
}

int pageOf(const MvCalendarDocument &document, const QDate &date)
{
    const QList<MvCalendarPage> &pages = document.pages();
    const auto found = std::find_if(pages.cbegin(), pages.cend(), [&date](const MvCalendarPage &page) {
        return page.printedMonths().contains(date);
    });
    return found == pages.cend() ? -1 : int(std::distance(pages.cbegin(), found));
}

/// Today, if the calendar has it, or else the first day of the current page.
QDate dateOfNewEntries(const MvPageEdits &edits)
{
    const QDate today = QDate::currentDate();
    return edits.document().range().contains(today) ? today : edits.page().contentConfig().moveToDayInMonth(1).date();
}

} // namespace

MvEntriesPanel::MvEntriesPanel(MvPageEdits *edits, MvProject *project, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_list(nullptr)
{
    setObjectName(u"entriesPanel"_s);
    panelLayout()->addWidget(new MvOwnEntriesSwitch(project, this));
    m_list = new MvEntryList(this, project->session());
    m_list->layout()->setContentsMargins({}); // the panel has some
    panelLayout()->addWidget(m_list, 1);
    connect(m_list, &MvEntryList::eventClicked, this, &MvEntriesPanel::goTo);
    connect(m_list, &MvEntryList::groupsRequested, this, &MvEntriesPanel::groupsRequested);
}

void MvEntriesPanel::showPage()
{
    m_list->setDateOfNewEntries(dateOfNewEntries(*edits()));
}

/// The next one from the shown page's month on, or the first of the calendar.
MvEntriesPanel::Place MvEntriesPanel::placeOf(const MvCalendarEvent &event) const
{
    const MvCalendarDocument &document = edits()->document();
    QList<QDate> days = daysIn(document.range(), event);
    const MvDateRange shown = edits()->page().printedMonths();
    std::stable_partition(days.begin(), days.end(), [&shown](const QDate &day) { return day >= shown.start(); });
    for (const QDate &day : std::as_const(days)) {
        if (const int page = pageOf(document, day); page >= 0)
            return {page, day};
    }
    return {};
}

void MvEntriesPanel::goTo(const MvCalendarEvent &event)
{
    if (!event.isValid())
        return;
    const Place place = placeOf(event);
    if (place.page >= 0)
        Q_EMIT dayRequested(place.page, place.date);
    else
        Q_EMIT message(tr("„%1“ kommt in den Monaten dieses Kalenders nicht vor.")
                           .arg(MvPrintableText::inShort(event.description(), messageLetters)));
}
