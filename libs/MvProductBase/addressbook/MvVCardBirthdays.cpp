// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardBirthdays.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"

using namespace Qt::StringLiterals;

using Order = MvVCardDate::Order;

bool MvVCardBirthdays::add(const MvVCard &card)
{
    const int number = m_cardCount++;
    const bool hasDate = !card.birthday.isEmpty() || !card.anniversary.isEmpty();
    m_withoutDate += int(!hasDate);
    m_withoutName += int(hasDate && card.name.isEmpty());
    for (const bool isAnniversary : {false, true}) {
        Entry entry{card, isAnniversary, number, m_file};
        entry.card.pictureCode.clear();
        take(entry);
    }
    return hasDate && !card.name.isEmpty();
}

void MvVCardBirthdays::take(const Entry &entry)
{
    const MvVCardDate &date = entry.date();
    if (date.provenOrder() != Order::Unknown)
        m_proven[{entry.file, date.separator()}].insert(int(date.provenOrder()));
    if (!date.isEmpty() && !entry.card.name.isEmpty())
        m_entries.append(entry);
}

Order MvVCardBirthdays::settledOrder(const Entry &entry) const
{
    const QSet<int> proven = m_proven.value({entry.file, entry.date().separator()});
    return proven.size() == 1 ? Order(*proven.begin()) : Order::Unknown;
}

MvVCardDate MvVCardBirthdays::openExample() const
{
    for (const Entry &entry : m_entries)
        if (entry.date().isAmbiguous() && settledOrder(entry) == Order::Unknown)
            return entry.date();
    return {};
}

MvVCardBirthdays::Person MvVCardBirthdays::personOf(const Entry &entry, const QDate &date, const MvLocale &language)
{
    const QUuid uuid = entry.card.uuid(date);
    if (!entry.isAnniversary)
        return {entry.card.name, date, uuid, entry.cardNumber};
    const QString name = MvCalendarWordsRegistry::instance().anniversary(
        language.isValid() ? language : MvLocale(MvApplicationLocale::instance().locale().name()), entry.card.name);
    return {name, date, QUuid::createUuidV5(uuid, u"anniversary"_s), entry.cardNumber};
}

MvVCardBirthdays::Result MvVCardBirthdays::result(Order order, const MvLocale &language) const
{
    Result result;
    QHash<QUuid, QString> known; // name and date by uuid
    for (const Entry &entry : m_entries) {
        const Order settled = settledOrder(entry);
        const QDate date = entry.date().date(settled == Order::Unknown ? order : settled);
        if (!date.isValid()) {
            result.notUnderstood.append(tr("%1: %2").arg(entry.card.name, entry.date().text()));
            result.cardsOfNotUnderstood.append(entry.cardNumber);
            continue;
        }
        Person person = personOf(entry, date, language);
        const QString content = person.name + u'|' + date.toString(Qt::ISODate);
        if (known.value(person.uuid, content) != content) // some programs give one UID to several people
            person.uuid = QUuid::createUuidV5(person.uuid, content);
        person.isRepeated = known.contains(person.uuid);
        known.insert(person.uuid, content);
        result.persons.append(person);
    }
    return result;
}
