// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvStudioApplication.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvProcessTimeZone.h"
#include "MvCore/MvTranslations.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvImageLoader.h"
#include "MvFoto/MvPictureIntake.h"
#include "MvGUIWidgets/MvDialogRequestHandler.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvGUIWidgets/MvTheme.h"
#include "MvGUIWidgets/MvWindowFit.h"
#include "MvProductBase/MvVCardAddressBook.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"
#include "flows/MvEntriesFlow.h"
#include "flows/MvProjectFlow.h"
#include "flows/MvRecoveryDialog.h"
#include "window/MvStudioWindow.h"

#include <QApplication>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds quietTime(60); // after the start, until photos nobody needs are tidied up

} // namespace

MvStudioApplication::MvStudioApplication(const MvStudioOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{
    setUpLanguage(options);
    applyTheme();
    MvInitializer::instance().setup(MvInitializerOption::Everything);
    auto addressBook = std::make_unique<MvVCardAddressBook>();
    addressBook->setPictureDecoder(
        [](const QByteArray &bytes) { return MvPictureIntake::decoded(bytes, MvPictureIntake::sideOfEntries); });
    MvPlatformIndependent::setInstance(std::move(addressBook));
    auto requests = std::make_unique<MvDialogRequestHandler>();
    requests->setFolderMemory(&MvStudioSettings::folderOfRequest, &MvStudioSettings::setFolderOfRequest);
    MvRequestHandler::install(std::move(requests));
    qApp->installEventFilter(new MvWindowFit(this));
    QApplication::setWindowIcon(MvIconRegistry::instance().applicationIcon());
    m_project = std::make_unique<MvProject>();
    m_project->keepEntries();
    m_project->setEntriesReachOwn(MvStudioSettings::doEntriesReachOwn());
    m_project->newProject(MvProjectFlow::firstDocument());
    m_autosave = std::make_unique<MvProjectAutosave>(m_project.get());
}

MvStudioApplication::~MvStudioApplication()
{
    MvStudioSettings::setFailureHandler({});
    m_window.reset();
    m_autosave.reset();
    m_project->session().undo().clear();
    m_project.reset();
    MvInitializer::instance().teardown();
}

void MvStudioApplication::setUpProcess(const QString &version)
{
    QCoreApplication::setApplicationName(u"mvcalendar-studio"_s);
    QCoreApplication::setApplicationVersion(version);
    QGuiApplication::setDesktopFileName(u"mvcalendar-studio"_s);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    MvImageLoader::raiseProcessLimit();
    MvProcessTimeZone::askOnce();
}

void MvStudioApplication::setUpLanguage(const MvStudioOptions &options)
{
    const QString wanted = options.language().isEmpty() ? MvStudioSettings::language() : options.language();
    if (!MvTranslations::install(wanted)) // "system", or never chosen
        MvTranslations::install(MvTranslations::systemLanguage());
}

void MvStudioApplication::applyTheme()
{
    const QString name = m_options.theme().isEmpty() ? MvStudioSettings::theme() : m_options.theme();
    MvTheme::apply(MvTheme::schemeFromName(name).value_or(MvTheme::Scheme::System));
}

void MvStudioApplication::start()
{
    m_window = std::make_unique<MvStudioWindow>(m_project.get());
    connect(m_window.get(), &MvStudioWindow::themeChanged, this, [] {
        MvTheme::apply(MvTheme::schemeFromName(MvStudioSettings::theme()).value_or(MvTheme::Scheme::System));
    });
    connect(m_autosave.get(), &MvProjectAutosave::failed, m_window.get(), [this](const QString &error) {
        MvStudioMessage::error(m_window.get(), tr("Die Sicherung nebenbei ist misslungen. Speichern Sie bald selbst."),
                               error);
    });
    m_window->show();
    MvStudioSettings::setFailureHandler([this](const QString &error) {
        MvStudioMessage::error(m_window.get(), tr("Die Einstellungen ließen sich nicht speichern."), error);
    });
    QTimer::singleShot(quietTime, this, [this] { m_project->session().entries().sweepFotos(); });
    QTimer::singleShot(0, m_window.get(), [this] {
        tellUnwritableFolder();
        m_window->entriesFlow()->start();
        if (!m_options.file().isEmpty())
            m_window->projectFlow()->open(QFileInfo(m_options.file()).absoluteFilePath());
        offerRecovery();
    });
}

void MvStudioApplication::tellUnwritableFolder()
{
    const QDir folder = MvDirectoryConfig::instance().programDataDir();
    QFileInfo place(folder.absolutePath());
    while (!place.exists() && !place.isRoot())
        place = QFileInfo(place.absolutePath()); // where it would have to be made
    if (place.isDir() && place.isWritable())
        return;
    MvStudioMessage::error(m_window.get(), tr("Ihre Einträge können auf diesem Rechner nicht gespeichert werden."),
                           tr("In den Ordner %1 lässt sich nicht schreiben. Was Sie eintragen, und was zwischendurch "
                              "gesichert wird, ist nach dem Beenden nicht mehr da. Geben Sie dem Ordner Schreibrechte, "
                              "und starten Sie das Programm neu.")
                               .arg(QDir::toNativeSeparators(folder.absolutePath())));
}

void MvStudioApplication::offerRecovery()
{
    const QList<MvProjectRecovery::Entry> entries = MvProjectRecovery::found();
    if (entries.isEmpty())
        return;
    auto *dialog = new MvRecoveryDialog(entries, m_window.get());
    connect(dialog, &MvRecoveryDialog::openRequested, this, [this](const MvProjectRecovery::Entry &entry) {
        m_window->projectFlow()->leave([this, entry] {
            if (const MvOutcome opened = MvProjectRecovery::open(entry, *m_project); !opened.isOk())
                MvStudioMessage::error(m_window.get(), tr("Der Kalender lässt sich nicht wiederherstellen."),
                                       opened.error);
        });
    });
    dialog->open();
}
