// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvAddressBookImport.h"

#include "MvCalendar/MvCalendarEventMerge.h"

#include "MvFoto/MvPictureIntake.h"
#include "MvProductBase/MvVCardStream.h"

#include <QFile>

#include <utility>

using namespace Qt::StringLiterals;

MvAddressBookImport::MvAddressBookImport(const QList<QFileInfo> &files, const MvLocale &language)
    : m_files(files)
    , m_language(language)
    , m_fotoFolder(MvCalendarEvent::imageDirectory())
{
    for (const QFileInfo &file : files)
        m_totalBytes += 2 * file.size(); // both steps
}

MvAddressBookImport::~MvAddressBookImport()
{
    removeFotos();
}

double MvAddressBookImport::progress() const
{
    return m_totalBytes > 0 ? qMin(1.0, double(m_bytesRead) / double(m_totalBytes)) : 0.0;
}

bool MvAddressBookImport::goOn(qint64 bytesRead)
{
    m_bytesRead = m_bytesBefore + bytesRead;
    return !m_isCancelled;
}

void MvAddressBookImport::readCards()
{
    for (const QFileInfo &file : m_files) {
        m_birthdays.beginFile();
        MvVCardStream stream(file, [this](qint64 bytes) { return goOn(bytes); });
        for (MvVCard card; stream.next(&card);)
            m_birthdays.add(card);
        if (const QString error = stream.error(); !error.isEmpty())
            m_report.errors.append(error);
        m_bytesBefore += file.size();
    }
    m_report.withoutDate = m_birthdays.withoutDate();
    m_report.withoutName = m_birthdays.withoutName();
}

void MvAddressBookImport::makeEntries(const MvCalendarEventList &known, MvVCardDate::Order order)
{
    copyFotos(makeEvents(known, order));
    if (m_isCancelled)
        removeFotos();
}

MvAddressBookImport::EventsByCard MvAddressBookImport::makeEvents(const MvCalendarEventList &known,
                                                                  MvVCardDate::Order order)
{
    const MvVCardBirthdays::Result result = m_birthdays.result(order, m_language);
    m_report.notUnderstood = result.notUnderstood;
    MvCalendarEventList all;
    QHash<QUuid, int> cards;
    const QDateTime now = QDateTime::currentDateTime();
    for (const MvVCardBirthdays::Person &person : result.persons) {
        if (m_isCancelled || person.isRepeated)
            continue;
        all.append(MvCalendarEvent(person.name, MvCalendarEvent::startOf(person.date), true, {}, person.uuid, now));
        cards.insert(person.uuid, person.card);
    }
    m_events = MvCalendarEventMerge::joined(known, all, false);
    m_report.found = int(all.size());
    m_report.known = int(all.size() - m_events.size());
    EventsByCard eventsByCard;
    for (qsizetype i = 0; i < m_events.size(); ++i)
        eventsByCard[cards.value(m_events.at(i).uuid())].append(i);
    return eventsByCard;
}

/// Reads the cards once more, as far as there are some that are wanted.
void MvAddressBookImport::copyFotos(EventsByCard wanted)
{
    int number = 0;
    for (const QFileInfo &file : m_files) {
        MvVCardStream stream(file, [this](qint64 bytes) { return goOn(bytes); });
        for (MvVCard card; !wanted.isEmpty() && !m_isCancelled && stream.next(&card);) {
            const QList<qsizetype> events = wanted.take(number++);
            // somebody may have written the file anew since: then its cards are others, and this is not their photo
            if (!events.isEmpty() && !card.name.isEmpty() &&
                m_events.at(events.first()).description().contains(card.name))
                copyFoto(card, events);
        }
        m_bytesBefore += file.size();
    }
}

void MvAddressBookImport::copyFoto(const MvVCard &card, const QList<qsizetype> &events)
{
    if (!card.hasPicture())
        return;
    const MvPictureIntake::Result foto =
        card.isPictureTooLarge
            ? MvPictureIntake::Result{{tr("Das Bild ist zu groß."), {}}, {}}
            : MvPictureIntake::put(card.picture(), m_fotoFolder, card.name, MvPictureIntake::sideOfEntries);
    if (!foto.isOk()) {
        m_report.unreadablePictures.append(u"%1: %2"_s.arg(card.name, foto.error));
        return;
    }
    m_fotos.append(foto.file.absoluteFilePath());
    for (const qsizetype event : events)
        m_events[event].setFoto(MvFoto(foto.file));
}

MvCalendarEventList MvAddressBookImport::takeEvents()
{
    m_fotos.clear();
    return std::exchange(m_events, {});
}

void MvAddressBookImport::removeFotos()
{
    for (const QString &foto : std::exchange(m_fotos, {}))
        QFile::remove(foto);
}
