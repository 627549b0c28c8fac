// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventContacts.h"

#include "MvCore/MvBasisSettings.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvProactiveHelpController.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int importAdvice = 43;
constexpr double importAdviceDelay = 0.5;
constexpr int importAdviceHelpType = 4;

MvCalendarEvent eventOf(const MvSimplePerson &person, const QString &temporaryPath)
{
    MvFoto foto;
    const QImage image = person.image();
    if (!image.isNull() && image.save(temporaryPath, "PNG"))
        foto = MvFoto(QFileInfo(temporaryPath));
    MvCalendarEvent event(person.name(), MvCalendarEvent::startOf(person.birthday()), true, MvFoto(), person.uuid(),
                          QDateTime::currentDateTime());
    if (const MvOutcome taken = event.takeFoto(foto); !taken.isOk()) // the birthday is kept even without its picture
        qWarning().noquote() << taken.error;
    return event;
}

} // namespace

MvCalendarEventList MvCalendarEventContacts::entries()
{
    const MvSimplePersonList persons = MvPlatformIndependent::instance().addressBookContacts();
    const QString folder = MvBasisSettings::instance().temporaryDirectory();
    MvCalendarEventList events;
    for (const MvSimplePerson &person : persons) {
        const QString temporaryPath = u"%1/%2.png"_s.arg(folder, person.uuid().toString());
        events.append(eventOf(person, temporaryPath));
        QFile::remove(temporaryPath);
    }
    return events;
}

void MvCalendarEventContacts::tellImported(int foundInAddressBook, int imported)
{
    const QString text = tr("%1 von %2 Einträgen mit Geburtstagen importiert").arg(imported).arg(foundInAddressBook);
    MvProactiveHelpController &help = MvProactiveHelpController::instance();
    help.resetPendingAdvicesAndClose();
    help.updatePlaceHolderText(importAdvice, u"#ENTRIES_MESSAGE#"_s, text);
    help.showAdvice(importAdvice, importAdviceDelay, importAdviceHelpType, MvProactiveHelpTransferContent{0, {}});
}
