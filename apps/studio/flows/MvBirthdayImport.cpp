#include "flows/MvBirthdayImport.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvUndoController.h"
#include "MvCore/MvVCardAddressBook.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"
#include "flows/MvUndoCommandEventList.h"

#include <QFileDialog>
#include <QThread>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype personsAtATime = 4; // photos are copied: some of these take a while

/// Hands out people that have been read already.
class ReadAddressBook : public MvPlatformIndependent
{
public:
    explicit ReadAddressBook(const MvSimplePersonList &persons)
        : m_persons(persons)
    {}

    MvSimplePersonList addressBookContacts() override { return m_persons; }

private:
    MvSimplePersonList m_persons;
};

} // namespace

MvBirthdayImport::MvBirthdayImport(QWidget *window)
    : QObject(window)
    , m_window(window)
{}

MvBirthdayImport::~MvBirthdayImport()
{
    if (m_thread)
        m_thread->wait();
}

void MvBirthdayImport::start()
{
    auto *dialog = new QFileDialog(m_window, tr("Geburtstage aus einem Adressbuch importieren"),
                                   MvStudioSettings::folder(u"contacts"_s));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"contactsFileDialog"_s);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters({tr("Visitenkarten (*.vcf *.vcard)"), tr("Alle Dateien (*)")});
    connect(dialog, &QFileDialog::filesSelected, this, &MvBirthdayImport::import);
    dialog->open();
}

void MvBirthdayImport::import(const QStringList &files)
{
    if (m_isRunning || files.isEmpty())
        return;
    m_isRunning = true;
    MvStudioSettings::setFolder(u"contacts"_s, QFileInfo(files.first()).absolutePath());
    Q_EMIT message(tr("Das Adressbuch wird gelesen …"));
    const auto book = std::make_shared<MvVCardAddressBook>();
    QList<QFileInfo> infos;
    for (const QString &file : files)
        infos.append(QFileInfo(file));
    book->setFiles(infos);
    const auto persons = std::make_shared<MvSimplePersonList>();
    m_thread.reset(QThread::create([book, persons] { *persons = book->addressBookContacts(); }));
    connect(m_thread.get(), &QThread::finished, this, [this, book, persons] { take(*persons, book->lastError()); });
    m_thread->start();
}

void MvBirthdayImport::take(const MvSimplePersonList &persons, const QString &error)
{
    m_thread->wait();
    m_thread.release()->deleteLater(); // it is still emitting
    m_waiting = persons;
    m_found = persons.size();
    m_error = error;
    m_events.clear();
    takeSome();
}

void MvBirthdayImport::takeSome()
{
    if (m_waiting.isEmpty()) {
        finish();
        return;
    }
    MvSimplePersonList some;
    while (!m_waiting.isEmpty() && some.size() < personsAtATime)
        some.append(m_waiting.takeFirst());
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    auto former = MvPlatformIndependent::setInstance(std::make_unique<ReadAddressBook>(some));
    const MvCalendarEventList events = registry.loadFromSystemAddressBook();
    MvPlatformIndependent::setInstance(std::move(former));
    m_events.append(registry.onlyNewEvents(registry.activeEventList(), events));
    QTimer::singleShot(0, this, &MvBirthdayImport::takeSome);
}

void MvBirthdayImport::finish()
{
    m_isRunning = false;
    const auto imported = m_events.size();
    if (imported > 0)
        MvUndoController::instance().push(new MvUndoCommandEventList(tr("Geburtstage importieren"), m_events));
    m_events.clear();
    Q_EMIT message(tr("%1 von %n Geburtstagen importiert", nullptr, int(m_found)).arg(imported));
    if (!m_error.isEmpty())
        MvStudioMessage::error(m_window, tr("Ein Adressbuch ließ sich nicht lesen."), m_error);
    else if (m_found == 0)
        MvStudioMessage::information(m_window, tr("In den Visitenkarten steht kein Geburtstag."),
                                     tr("Tragen Sie die Geburtstage im Adressbuch ein, und exportieren Sie es noch "
                                        "einmal als vCard (.vcf)."));
    else if (imported == 0)
        MvStudioMessage::information(m_window, tr("Alle %n Geburtstage waren schon da.", nullptr, int(m_found)));
    else
        MvStudioMessage::information(m_window,
                                     tr("%1 von %n Geburtstagen importiert.", nullptr, int(m_found)).arg(imported),
                                     tr("Sie stehen jetzt auf ihren Tagen. Zurücknehmen lässt sich das mit "
                                        "Bearbeiten > Rückgängig."));
    Q_EMIT finished(int(m_found), int(imported));
}
