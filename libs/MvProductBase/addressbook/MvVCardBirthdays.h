// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProductBase/MvVCard.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>
#include <QUuid>

/// Collects who has which day on visiting cards, and what of it could not be understood.
///
/// Dates that are read differently in different countries are settled by the others of their file: where one of the
/// same form has a number above 12, all are in its order. Where none has, or some contradict others, somebody has to
/// say the order, or they count as not understood.
class MVPRODUCTBASE_EXPORT MvVCardBirthdays
{
    Q_DECLARE_TR_FUNCTIONS(MvVCardBirthdays)

public:
    struct Person
    {
        QString name; // of a wedding with what it is
        QDate date;   // with MvVCardDate::unknownYear if nobody knows the year
        QUuid uuid;
        int card = 0;            // number of the card among all, from 0
        bool isRepeated = false; // has been there before: the same name on the same date
    };

    struct Result
    {
        QList<Person> persons;           // in the order of the cards
        QStringList notUnderstood;       // "name: what stands there"
        QList<int> cardsOfNotUnderstood; // the numbers of their cards
    };

    /// Dates of cards that follow do not say anything about those that were added before.
    void beginFile() { ++m_file; }
    /// True when it may give a person.
    bool add(const MvVCard &card);

    int cardCount() const { return m_cardCount; }
    int withoutDate() const { return m_withoutDate; } // cards
    int withoutName() const { return m_withoutName; } // cards that have a date

    /// A date whose order nothing settles; empty when no order has to be said.
    MvVCardDate openExample() const;
    /// The order is for the dates that nothing else settles; the language is that in which a wedding is named, at
    /// first the program's.
    Result result(MvVCardDate::Order order = MvVCardDate::Order::Unknown, const MvLocale &language = {}) const;

private:
    struct Entry
    {
        MvVCard card; // without its picture
        bool isAnniversary = false;
        int cardNumber = 0;
        int file = 0;

        const MvVCardDate &date() const { return isAnniversary ? card.anniversary : card.birthday; }
    };
    using Form = std::pair<int, QChar>; // file and what separates the numbers

    void take(const Entry &entry);
    MvVCardDate::Order settledOrder(const Entry &entry) const;
    static Person personOf(const Entry &entry, const QDate &date, const MvLocale &language);

    QList<Entry> m_entries;
    QHash<Form, QSet<int>> m_proven; // orders that cannot be otherwise
    int m_file = 0;
    int m_cardCount = 0;
    int m_withoutDate = 0;
    int m_withoutName = 0;
};
