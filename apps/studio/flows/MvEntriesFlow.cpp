// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvEntriesFlow.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "common/MvStudioMessage.h"
#include "flows/MvRestoreEntriesDialog.h"

#include <QDir>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

using Problem = MvCalendarEventStore::Problem;

constexpr int mostNamed = 8;       // entries that were left out
constexpr int watchInterval = 250; // ms

bool isOfWriting(int kind)
{
    return kind == Problem::NotSaved || kind == Problem::Busy;
}

QString headline(Problem::Kind kind)
{
    switch (kind) {
    case Problem::None:
        break;
    case Problem::Unreadable:
        return MvEntriesFlow::tr("Ihre eigenen Einträge lassen sich nicht lesen.");
    case Problem::PartlyReadable:
        return MvEntriesFlow::tr("Ein Teil Ihrer eigenen Einträge lässt sich nicht lesen.");
    case Problem::NotSaved:
        return MvEntriesFlow::tr("Ihre letzten Änderungen an Ihren eigenen Einträgen sind nicht gespeichert.");
    case Problem::Busy:
        return MvEntriesFlow::tr("Ihre letzten Änderungen an Ihren eigenen Einträgen sind noch nicht gespeichert.");
    }
    return {};
}

QString backupsText(const QList<QFileInfo> &backups)
{
    if (backups.isEmpty())
        return MvEntriesFlow::tr("Eine frühere Fassung gibt es nicht.");
    const QLocale locale = MvApplicationLocale::instance().locale();
    QStringList dates;
    for (const QFileInfo &backup : backups)
        dates.append(locale.toString(backup.lastModified(), QLocale::ShortFormat));
    return MvEntriesFlow::tr("Frühere Fassungen gibt es vom %1.").arg(dates.join(u"; "_s));
}

QString explanation(const Problem &problem)
{
    QStringList parts{problem.text};
    if (isOfWriting(problem.kind)) {
        parts.append(MvEntriesFlow::tr("Solange das Programm läuft, sind sie noch da. Schaffen Sie Platz oder "
                                       "Schreibrechte, und versuchen Sie es noch einmal, oder sichern Sie Ihre "
                                       "Einträge in eine andere Datei."));
        return parts.join(u"\n\n"_s);
    }
    if (!problem.skipped.isEmpty())
        parts.append(MvCalendarEventFile::describe(problem.skipped, mostNamed));
    parts.append(
        problem.setAside.filePath().isEmpty()
            ? MvEntriesFlow::tr("Die Datei bleibt, wie sie ist; bevor eine neue an ihre Stelle kommt, wird sie "
                                "beiseitegelegt.")
            : MvEntriesFlow::tr("Die Datei wird aufbewahrt: %1")
                  .arg(QDir::toNativeSeparators(problem.setAside.filePath())));
    parts.append(backupsText(problem.backups));
    return parts.join(u"\n\n"_s);
}

} // namespace

MvEntriesFlow::MvEntriesFlow(MvCalendarEventRegistry &entries, QWidget *window)
    : QObject(window)
    , m_registry(entries)
    , m_window(window)
{
    connect(&store(), &MvCalendarEventStore::problemChanged, this, &MvEntriesFlow::onProblemChanged);
}

MvCalendarEventStore &MvEntriesFlow::store() const
{
    return m_registry.userFile();
}

void MvEntriesFlow::start()
{
    m_isStarted = true;
    onProblemChanged();
}

QString MvEntriesFlow::notice() const
{
    switch (store().problem().kind) {
    case Problem::None:
        break;
    case Problem::Unreadable:
        return tr("Einträge nicht lesbar");
    case Problem::PartlyReadable:
        return tr("Einträge nicht alle lesbar");
    case Problem::NotSaved:
        return tr("Einträge nicht gespeichert");
    case Problem::Busy:
        return tr("Einträge noch nicht gespeichert");
    }
    return {};
}

void MvEntriesFlow::onProblemChanged()
{
    const Problem problem = store().problem();
    if (!isOfWriting(problem.kind)) // each trouble with writing is told anew
        m_told -= {Problem::NotSaved, Problem::Busy};
    if (!problem.isProblem()) {
        m_told.clear();
        if (m_box)
            m_box->close();
    }
    Q_EMIT noticeChanged(notice());
    // what is tried again by itself needs no box
    if (!m_isStarted || !problem.isProblem() || problem.kind == Problem::Busy || m_told.contains(problem.kind))
        return;
    m_told.insert(problem.kind);
    QTimer::singleShot(0, this, &MvEntriesFlow::show); // whatever is going on just now comes to its end first
}

void MvEntriesFlow::show()
{
    const Problem problem = store().problem();
    if (!problem.isProblem())
        return;
    if (m_box)
        m_box->close();
    m_box = MvStudioMessage::question(m_window, u"entriesProblem"_s, headline(problem.kind), explanation(problem));
    m_box->setIcon(QMessageBox::Warning);
    const auto addButton = [this](const QString &text, const char *name, auto function) {
        QPushButton *button = m_box->addButton(text, QMessageBox::AcceptRole);
        button->setObjectName(QLatin1StringView(name));
        connect(button, &QPushButton::clicked, this, function);
    };
    if (isOfWriting(problem.kind)) {
        addButton(tr("Noch einmal versuchen"), "retryButton", &MvEntriesFlow::retry);
        addButton(tr("In andere Datei sichern …"), "saveElsewhereButton", [this] { saveElsewhere({}); });
    } else {
        if (!problem.backups.isEmpty())
            addButton(tr("Wiederherstellen …"), "restoreButton", &MvEntriesFlow::restore);
        addButton(tr("Ohne sie weitermachen"), "dismissButton", [this] { store().dismissReadProblem(); });
    }
    QPushButton *later = m_box->addButton(tr("Später entscheiden"), QMessageBox::RejectRole);
    later->setObjectName(u"laterButton"_s);
    m_box->setDefaultButton(later);
    m_box->setEscapeButton(later);
    m_box->open();
}

void MvEntriesFlow::retry()
{
    if (store().saveNow())
        Q_EMIT message(tr("Die Einträge sind gespeichert"));
    else
        QTimer::singleShot(0, this, &MvEntriesFlow::show);
}

void MvEntriesFlow::restore()
{
    auto *dialog = new MvRestoreEntriesDialog(store().problem().backups, m_window);
    connect(dialog, &MvRestoreEntriesDialog::restoreRequested, this, [this](const QFileInfo &backup) {
        if (const MvOutcome restored = store().restoreBackup(backup); restored.isOk())
            Q_EMIT message(tr("Die Einträge sind wiederhergestellt"));
        else
            MvStudioMessage::error(m_window, tr("Die Einträge ließen sich nicht wiederherstellen."), restored.error);
    });
    dialog->open();
}

void MvEntriesFlow::saveElsewhere(const Then &then)
{
    const auto save = [this, then](const QString &fileName) {
        if (fileName.isEmpty())
            return;
        m_registry.saveOwnAs(QFileInfo(fileName));
        const QString error = m_registry.lastSaveError();
        if (!error.isEmpty()) {
            MvDiskAccessRequest::instance().writeCalendarEntriesFileFailed(fileName, error, m_window);
            return;
        }
        Q_EMIT message(tr("Einträge gesichert: %1").arg(QDir::toNativeSeparators(fileName)));
        if (then)
            then();
    };
    MvDiskAccessRequest::instance().requestSaveFile(MvDiskAccessRequest::CalendarEntriesFile, tr("Kalendereinträge"),
                                                    u"*.xml"_s, tr("Kalendereinträge") + u".xml"_s, m_window, save);
}

bool MvEntriesFlow::hasUnsaved() const
{
    return store().hasUnsavedChanges() && !store().saveNow();
}

void MvEntriesFlow::leave(const Then &then)
{
    if (!hasUnsaved()) {
        then();
        return;
    }
    if (m_box)
        m_box->close();
    m_told.insert(store().problem().kind); // said here
    QString hint = store().problem().text;
    if (!hint.isEmpty())
        hint += u"\n\n"_s;
    hint += tr("Wenn Sie das Programm jetzt beenden, gehen sie verloren.");
    QMessageBox *box =
        MvStudioMessage::question(m_window, u"entriesUnsavedQuestion"_s, headline(Problem::NotSaved), hint);
    const auto addButton = [this, box](const QString &text, const char *name, QMessageBox::ButtonRole role,
                                       const Then &function) {
        QPushButton *button = box->addButton(text, role);
        button->setObjectName(QLatin1StringView(name));
        connect(button, &QPushButton::clicked, this, function);
        return button;
    };
    QPushButton *again = addButton(tr("Noch einmal versuchen"), "retryButton", QMessageBox::AcceptRole,
                                   [this, then] { QTimer::singleShot(0, this, [this, then] { leave(then); }); });
    addButton(tr("In andere Datei sichern …"), "saveElsewhereButton", QMessageBox::AcceptRole,
              [this, then] { saveElsewhere(then); });
    addButton(tr("Trotzdem beenden"), "discardButton", QMessageBox::DestructiveRole, then);
    QPushButton *cancel = addButton(MvStudioMessage::buttonText(QDialogButtonBox::Cancel), "cancelButton",
                                    QMessageBox::RejectRole, [] {});
    box->setDefaultButton(again);
    box->setEscapeButton(cancel);
    box->open();
    auto *watch = new QTimer(box); // what is tried again by itself may come to its end while the question stands
    connect(watch, &QTimer::timeout, this, [this, box, then] {
        if (store().hasUnsavedChanges())
            return;
        box->close();
        QTimer::singleShot(0, this, then);
    });
    watch->start(watchInterval);
}
