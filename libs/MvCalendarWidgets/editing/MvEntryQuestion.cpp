// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryQuestion.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvRequestHandler.h"
#include "MvPaint/MvPrintableText.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

using Changes = QList<MvEntryChange>;

constexpr qsizetype longestName = 60;

/// The first choice is this time, the second, which may be missing, all times.
void ask(const QString &text, const QString &details, const QStringList &choices, const QList<Changes> &changes,
         QObject *asker, const MvEntryQuestion::Answer &answer)
{
    MvRequestHandler::ChoiceRequest question;
    question.title = MvEntryQuestion::tr("Eintrag, der sich wiederholt");
    question.text = text;
    question.details = details;
    question.buttons = choices;
    question.buttons.append(MvEntryQuestion::tr("Abbrechen"));
    const bool hasAsker = asker != nullptr;
    MvRequestHandler::current().askChoice(question, asker,
                                          [asker = QPointer(asker), hasAsker, changes, answer](int button) {
                                              if (asker || !hasAsker)
                                                  answer(changes.value(button));
                                          });
}

} // namespace

QString MvEntryQuestion::dayText(const QDate &date)
{
    return MvApplicationLocale::instance().locale().toString(date, tr("dddd, d. MMMM"));
}

void MvEntryQuestion::askForMove(const MvEntryMove &move, const MvCalendarEvent &changed, QObject *asker,
                                 const Answer &answer)
{
    if (move.isNone() || !MvEntryMove::doesRepeat(changed)) {
        answer(move.allTimes(changed));
        return;
    }
    const QString text =
        tr("„%1“ auf %2 verschieben?")
            .arg(MvPrintableText::inShort(changed.description(), longestName), dayText(move.newStart()));
    QStringList choices{tr("Nur dieses Mal")};
    QList<Changes> changes{move.thisTime(changed)};
    QString details = tr("Der Eintrag wiederholt sich. Nur dieses Mal lässt die anderen, wo sie sind; alle gehen "
                         "sonst mit.");
    if (move.canMoveAll()) {
        choices.append(tr("Alle"));
        changes.append(move.allTimes(changed));
    } else {
        details = tr("Der Eintrag wiederholt sich nach einer Regel, die an anderen Tagen nicht so gilt; „Mehr …“ beim "
                     "Eintrag ändert sie.");
    }
    ask(text, details, choices, changes, asker, answer);
}

void MvEntryQuestion::askForDeletion(const MvCalendarEvent &event, const QDate &day, QObject *asker,
                                     const Answer &answer)
{
    const Changes all{{event, {}}};
    if (!MvEntryMove::doesRepeat(event) || !event.startAt(day).isValid()) {
        answer(all);
        return;
    }
    ask(tr("„%1“ löschen?").arg(MvPrintableText::inShort(event.description(), longestName)),
        tr("Der Eintrag wiederholt sich."), {tr("Nur am %1").arg(dayText(day)), tr("Alle löschen")},
        {MvEntryMove::withoutTimeAt(event, day), all}, asker, answer);
}
