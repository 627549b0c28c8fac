// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoPages.h"

#include <algorithm>

MvFotoPages::MvFotoPages(MvFotoService::Urgency urgency, QObject *parent)
    : QObject(parent)
    , m_urgency(urgency)
{
    connect(&MvFotoService::instance(), &MvFotoService::arrived, this, &MvFotoPages::tellArrival);
}

bool MvFotoPages::isComplete(const Requests &requests)
{
    return std::all_of(requests.cbegin(), requests.cend(), [](const MvFotoRequest &foto) { return foto.isDone(); });
}

void MvFotoPages::tellArrival(const MvFotoOrder &order)
{
    QList<int> complete; // first: who hears of it may paint
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        if (page->contains(order) && isComplete(*page))
            complete.append(page.key());
    }
    for (const int page : std::as_const(complete))
        Q_EMIT arrived(page);
}
