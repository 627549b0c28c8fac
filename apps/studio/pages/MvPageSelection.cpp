// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageSelection.h"

#include "MvProject/MvProject.h"

#include <algorithm>

MvPageSelection::MvPageSelection(MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    connect(project, &MvProject::documentReplaced, this, [this] { setPage(0); });
    // as early as anybody hears of a change, so that nobody asks for what is not there any more
    for (const auto changed : {&MvProject::pagesReset, &MvProject::documentChanged})
        connect(project, changed, this, &MvPageSelection::check);
    connect(project, &MvProject::pageChanged, this, &MvPageSelection::check);
}

void MvPageSelection::setPage(int page)
{
    if (m_page != page)
        selectNothing();
    m_page = page;
}

void MvPageSelection::selectNothing()
{
    set(Kind::Calendar, -1, {});
}

QList<int> MvPageSelection::elements() const
{
    QList<int> all = m_others;
    if (m_element >= 0)
        all.append(m_element);
    std::sort(all.begin(), all.end());
    return all;
}

QList<int> MvPageSelection::elementsOfKind() const
{
    QList<int> alike = m_others;
    if (m_element >= 0)
        alike.append(m_element);
    alike.removeIf([this](int element) { return kindOf(element) != m_kind; });
    return alike;
}

void MvPageSelection::selectElement(int element)
{
    const Kind kind = kindOf(element);
    set(kind, kind == Kind::Calendar ? -1 : element, {});
}

void MvPageSelection::toggleElement(int element)
{
    QList<int> all = m_others;
    if (m_element >= 0)
        all.append(m_element);
    if (!all.removeOne(element))
        all.append(element);
    selectElements(all);
}

void MvPageSelection::selectElements(const QList<int> &elements)
{
    QList<int> all = elements;
    all.removeIf([this](int element) { return kindOf(element) == Kind::Calendar; });
    if (all.isEmpty()) {
        selectNothing();
        return;
    }
    const int main = all.takeLast();
    set(kindOf(main), main, {}, all);
}

void MvPageSelection::selectDay(const QDate &date)
{
    set(date.isValid() ? Kind::Day : Kind::Calendar, -1, date);
}

void MvPageSelection::selectNext(bool isForward)
{
    const MvCalendarDocument &document = m_project->document();
    const int count = int(document.pages().value(m_page).elementsOn(document.format()).size());
    const int step = isForward ? 1 : -1;
    int element = m_element < 0 && !isForward ? count : m_element;
    do
        element += step;
    while (element >= 0 && element < count && kindOf(element) == Kind::Calendar);
    selectElement(element);
}

void MvPageSelection::set(Kind kind, int element, const QDate &date, const QList<int> &others)
{
    if (m_kind == kind && m_element == element && m_date == date && m_others == others)
        return;
    m_kind = kind;
    m_element = element;
    m_others = others;
    m_date = date;
    Q_EMIT changed();
}

MvPageSelection::Kind MvPageSelection::kindOf(int element) const
{
    const MvCalendarDocument &document = m_project->document();
    if (m_page < 0 || m_page >= document.pages().size() || element < 0)
        return Kind::Calendar;
    const QList<MvPageElement> elements = document.pages().at(m_page).elementsOn(document.format());
    if (element >= elements.size())
        return Kind::Calendar;
    switch (elements.at(element).kind()) {
    case MvPageElement::Kind::Foto:
        return Kind::Foto;
    case MvPageElement::Kind::Text:
        return Kind::Text;
    case MvPageElement::Kind::Calendarium:
        return Kind::Calendarium;
    }
    return Kind::Calendar;
}

/// The page may have lost elements.
void MvPageSelection::check()
{
    if (m_element >= 0 && kindOf(m_element) != m_kind)
        selectNothing();
    QList<int> others = m_others;
    others.removeIf([this](int element) { return kindOf(element) == Kind::Calendar; });
    set(m_kind, m_element, m_date, others);
}
