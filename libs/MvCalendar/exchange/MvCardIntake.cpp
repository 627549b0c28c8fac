// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCardIntake.h"

#include "MvFoto/MvPictureIntake.h"
#include "MvProductBase/MvVCardBirthdays.h"
#include "MvProductBase/MvVCardStream.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>

#include <memory>

namespace {

class Reading
{
public:
    explicit Reading(const MvLocale &language)
        : m_language(language)
    {}

    MvEntryReading of(const QByteArray &bytes)
    {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        m_birthdays.beginFile();
        MvVCardStream stream(&buffer);
        for (MvVCard card; stream.next(&card);) {
            if (m_birthdays.add(card) || hasDate(card))
                m_cards.insert(m_birthdays.cardCount() - 1, card);
        }
        m_result.error = stream.error();
        if (m_result.isOk())
            takePersons();
        return m_result;
    }

private:
    static bool hasDate(const MvVCard &card) { return !card.birthday.isEmpty() || !card.anniversary.isEmpty(); }

    void takePersons()
    {
        for (const MvVCard &card : std::as_const(m_cards)) {
            if (card.name.isEmpty())
                m_result.skipped.append({card.line, {}, MvCardIntake::tr("der Name fehlt")});
        }
        const MvVCardBirthdays::Result result = m_birthdays.result(MvVCardDate::Order::Unknown, m_language);
        for (qsizetype i = 0; i < result.notUnderstood.size(); ++i) {
            const MvVCard card = m_cards.value(result.cardsOfNotUnderstood.at(i));
            const MvVCardDate &date = card.birthday.date().isValid() ? card.anniversary : card.birthday;
            const QString reason =
                date.isAmbiguous()
                    ? MvCardIntake::tr("in „%1“ ist nicht klar, was der Tag ist und was der Monat").arg(date.text())
                    : MvCardIntake::tr("das Datum „%1“ ist nicht zu lesen").arg(date.text());
            m_result.skipped.append({card.line, card.name, reason});
        }
        std::sort(m_result.skipped.begin(), m_result.skipped.end(),
                  [](const auto &a, const auto &b) { return a.line < b.line; });
        for (const MvVCardBirthdays::Person &person : result.persons) {
            if (!person.isRepeated)
                m_result.events.append(entryOf(person));
        }
        if (m_birthdays.withoutDate() > 0)
            m_result.notes.append(
                MvCardIntake::tr("%n Visitenkarten haben kein Datum.", nullptr, m_birthdays.withoutDate()));
    }

    MvCalendarEvent entryOf(const MvVCardBirthdays::Person &person)
    {
        MvCalendarEvent entry(person.name, MvCalendarEvent::startOf(person.date), true, {}, person.uuid,
                              QDateTime::currentDateTime());
        const MvVCard card = m_cards.value(person.card);
        if (card.hasPicture() && !m_fotos.contains(person.card))
            m_fotos.insert(person.card, fotoOf(card));
        if (const MvFoto foto = m_fotos.value(person.card); foto.isValid())
            entry.relocateFoto(foto);
        return entry;
    }

    MvFoto fotoOf(const MvVCard &card)
    {
        if (!m_result.fotos)
            m_result.fotos = std::make_shared<QTemporaryDir>();
        const MvPictureIntake::Result foto =
            card.isPictureTooLarge ? MvPictureIntake::Result{{MvCardIntake::tr("es ist größer als %1 MB")
                                                                  .arg(MvVCardLines::longestPicture >> 20),
                                                              {}},
                                                             {}}
                                   : MvPictureIntake::put(card.picture(), QDir(m_result.fotos->path()), card.name,
                                                          MvPictureIntake::sideOfEntries);
        if (foto.isOk())
            return MvFoto(foto.file);
        m_result.notes.append(MvCardIntake::tr("Zeile %1, „%2“ ohne sein Foto: %3")
                                  .arg(QString::number(card.line), card.name, foto.error));
        return {};
    }

    const MvLocale m_language;
    MvEntryReading m_result;
    MvVCardBirthdays m_birthdays;
    QHash<int, MvVCard> m_cards; // with dates, by number
    QHash<int, MvFoto> m_fotos;
};

} // namespace

MvEntryReading MvCardIntake::read(const QByteArray &bytes, const MvLocale &language)
{
    return Reading(language).of(bytes);
}
