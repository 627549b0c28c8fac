// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFileIntake.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/MvEntryTableDialog.h"
#include "MvCalendar/MvOpenCalendar.h"
#include "MvCore/MvBackground.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvYesNoRequest.h"

#include <QDir>
#include <QFutureWatcher>
#include <QPromise>
#include <QSet>
#include <QThreadPool>
#include <QWidget>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Content = MvCalendarEventFile::Content;
using Intake = MvCalendarEventFileIntake;

constexpr qint64 largeFile = 256LL * 1024; // bytes: some 1,000 entries
constexpr int mostNamed = 10;              // of the entries that are left out

/// The beginning and the end of a name that is too long for a question.
QString shortened(const QString &name)
{
    constexpr qsizetype longest = 80;
    return name.size() > longest ? name.left(longest / 2) + u'…' + name.right(longest / 2 - 1) : name;
}

void readInThread(const QFileInfo &file, QObject *asker, const std::function<void(const Content &)> &then)
{
    auto *watcher = new QFutureWatcher<Content>(asker);
    QObject::connect(watcher, &QFutureWatcherBase::finished, asker, [watcher, then] {
        watcher->deleteLater();
        then(watcher->result());
    });
    const auto promise = std::make_shared<QPromise<Content>>();
    promise->start();
    watcher->setFuture(promise->future());
    MvBackground::start(*QThreadPool::globalInstance(), [promise, file] {
        promise->addResult(MvEntryIntake::readAsList(file));
        promise->finish();
    });
}

QString skippedText(const Content &content)
{
    const QString count =
        MvCalendarEventFileIntake::tr("%n Einträge der Datei sind nicht lesbar:", nullptr, int(content.skipped.size()));
    return count + u'\n' + MvCalendarEventFile::describe(content.skipped, mostNamed);
}

/// How many entries of the list the file does not have.
int missingIn(const MvCalendarEventList &read, const MvCalendarEventList &present)
{
    const QSet<MvCalendarEvent> known(read.cbegin(), read.cend());
    return int(std::count_if(present.cbegin(), present.cend(),
                             [&known](const MvCalendarEvent &event) { return !known.contains(event); }));
}

QString replaceText(const QString &name, bool isEmpty, int present, bool isKeptWithProject)
{
    if (isKeptWithProject && isEmpty)
        return MvCalendarEventFileIntake::tr(
                   "„%1“ ist eine leere Liste. Die %n Einträge dieses Kalenders dennoch durch sie ersetzen?", nullptr,
                   present)
            .arg(name);
    if (isKeptWithProject)
        return MvCalendarEventFileIntake::tr("Die %n Einträge dieses Kalenders durch die aus „%1“ ersetzen?", nullptr,
                                             present)
            .arg(name);
    if (isEmpty)
        return MvCalendarEventFileIntake::tr("„%1“ ist eine leere Liste. Ihre %n Einträge dennoch durch sie ersetzen?",
                                             nullptr, present)
            .arg(name);
    return MvCalendarEventFileIntake::tr("Ihre %n Einträge durch die aus „%1“ ersetzen?", nullptr, present).arg(name);
}

MvRequestHandler::ChoiceRequest replaceQuestion(const QString &name, const Content &content, qsizetype present,
                                                int missing, bool isKeptWithProject)
{
    MvRequestHandler::ChoiceRequest question;
    question.text = replaceText(name, content.events.isEmpty(), int(present), isKeptWithProject);
    question.details =
        content.events.isEmpty()
            ? QString()
            : MvCalendarEventFileIntake::tr("%n davon stehen nicht in der Datei.", nullptr, missing) + u' ';
    question.details +=
        isKeptWithProject
            ? MvCalendarEventFileIntake::tr(
                  "Ihre eigenen Einträge und Ihre anderen Kalender bleiben, wie sie sind. Mit „Rückgängig“ "
                  "bekommen Sie die bisherigen Einträge wieder.")
            : MvCalendarEventFileIntake::tr(
                  "Die Liste gilt für alle Ihre Kalender, nicht nur für diesen. Mit „Rückgängig“ bekommen Sie "
                  "die bisherigen Einträge wieder.");
    question.buttons =
        QStringList{MvCalendarEventFileIntake::tr("Ersetzen"), MvCalendarEventFileIntake::tr("Abbrechen")};
    return question;
}

MvRequestHandler::ChoiceRequest restQuestion(const QString &name, Intake::Purpose purpose)
{
    MvRequestHandler::ChoiceRequest question;
    const bool adds = purpose == Intake::Purpose::Add;
    question.text = adds ? MvCalendarEventFileIntake::tr("Die lesbaren Einträge aus „%1“ hinzufügen?").arg(name)
                         : MvCalendarEventFileIntake::tr("Die lesbaren Einträge aus „%1“ laden?").arg(name);
    question.buttons =
        QStringList{adds ? MvCalendarEventFileIntake::tr("Hinzufügen") : MvCalendarEventFileIntake::tr("Laden"),
                    MvCalendarEventFileIntake::tr("Abbrechen")};
    return question;
}

} // namespace

void MvCalendarEventFileIntake::start(const QString &fileName, Purpose purpose, QObject *asker, const Take &take,
                                      MvSession &session)
{
    const QFileInfo file(fileName);
    const MvOpenCalendar calendar(session);
    const auto judgeRead = [fileName, purpose, asker, take, calendar, &session](const Content &content) {
        const auto takeHere = [asker, take, calendar](const MvCalendarEventList &read) {
            if (calendar.isStillOpen())
                take(read);
            else
                MvRequestHandler::current().report(tr("Kalendereinträge"), MvOpenCalendar::closedText(), asker);
        };
        if (calendar.isStillOpen())
            judge(fileName, purpose, content, asker, takeHere, session);
        else
            takeHere({}); // which says why not
    };
    const auto *widget = qobject_cast<QWidget *>(asker);
    const auto judgeTable = [judgeRead, file](const std::optional<MvEntryReading> &reading) {
        if (reading)
            judgeRead(MvEntryIntake::asList(*reading, file));
    };
    if (MvEntryIntake::isTable(file))
        MvEntryTableDialog::ask(file, widget ? widget->window() : nullptr, asker, judgeTable);
    else if (file.size() > largeFile)
        readInThread(file, asker, judgeRead);
    else
        judgeRead(MvEntryIntake::readAsList(file));
}

void MvCalendarEventFileIntake::judge(const QString &fileName, Purpose purpose, const Content &content, QObject *asker,
                                      const Take &take, const MvSession &session)
{
    const QString skipped = content.skipped.isEmpty() ? QString() : skippedText(content);
    const bool hasNothing = content.events.isEmpty() && !skipped.isEmpty();
    if (!content.refusal().isEmpty() || hasNothing) {
        const QString reason = content.refusal().isEmpty() ? skipped : content.refusal();
        MvDiskAccessRequest::instance().readCalendarEntriesFileFailed(fileName, reason, asker);
        return;
    }
    const MvCalendarEventList present = session.entries().eventsOfCurrentProject();
    const MvCalendarEventList read = MvEntryIntake::inGroups(present.groups(), content.events); // as it will be there
    const int missing = purpose == Purpose::Replace ? missingIn(read, present) : 0;
    if (missing == 0 && skipped.isEmpty()) {
        take(content.events);
        if (!content.note.isEmpty())
            MvRequestHandler::current().report(tr("Kalendereinträge"), content.note, asker);
        return;
    }
    const QString name = shortened(QFileInfo(fileName).fileName());
    MvRequestHandler::ChoiceRequest question =
        missing > 0 ? replaceQuestion(name, content, present.size(), missing, session.entries().isKeptWithProject())
                    : restQuestion(name, purpose);
    question.title = tr("Kalendereinträge");
    QStringList details{question.details};
    if (!skipped.isEmpty())
        details << skipped << QDir::toNativeSeparators(fileName);
    details << content.note;
    details.removeAll(QString());
    question.details = details.join(u"\n\n"_s);
    MvYesNoRequest::instance().request(question, asker, [events = content.events, take](bool yes) {
        if (yes)
            take(events);
    });
}
