// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvProjectFlow.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvFileName.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"
#include "common/MvCalendarHabits.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

const QString projectFolder = u"project"_s;

QString fileFilter()
{
    return MvProjectFlow::tr("Kalender (*.%1)").arg(MvProjectFile::suffix());
}

QFileDialog *createFileDialog(const QString &title, QFileDialog::AcceptMode mode, QWidget *parent)
{
    auto *dialog = new QFileDialog(parent, title, MvStudioSettings::folder(projectFolder), fileFilter());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"projectFileDialog"_s);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setDefaultSuffix(MvProjectFile::suffix());
    return dialog;
}

} // namespace

MvProjectFlow::MvProjectFlow(MvProject *project, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_window(window)
{
    connect(project, &MvProject::saved, this, [project] { MvCalendarHabits::remember(project->document()); });
}

MvCalendarDocument MvProjectFlow::firstDocument()
{
    MvCalendarDocument document;
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().defaultSchema());
    appearance.adoptLayoutSuggestions();
    appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
    appearance.adaptGridToLayout();
    document.setAppearance(appearance);
    MvCalendariumHolidayConfig holidays = document.holidayConfig();
    holidays.setProvince({}); // nobody has said where yet
    document.setHolidayConfig(holidays);
    MvCalendarHabits::applyTo(document);
    document.setTitle(MvCalendarTitle::ofRange(document.range(), document.holidayConfig().language()));
    return document;
}

bool MvProjectFlow::isProjectFile(const QString &path)
{
    return QFileInfo(path).suffix().compare(MvProjectFile::suffix(), Qt::CaseInsensitive) == 0;
}

void MvProjectFlow::askAndOpen()
{
    QFileDialog *dialog = createFileDialog(tr("Kalender öffnen"), QFileDialog::AcceptOpen, m_window);
    connect(dialog, &QFileDialog::fileSelected, this, &MvProjectFlow::open);
    dialog->open();
}

void MvProjectFlow::open(const QString &path)
{
    if (!QFileInfo::exists(path)) {
        MvStudioSettings::removeRecentFile(path);
        Q_EMIT recentFilesChanged();
        MvStudioMessage::error(
            m_window, tr("Die Datei gibt es nicht mehr: %1").arg(QDir::toNativeSeparators(path)),
            tr("Vielleicht wurde sie verschoben oder umbenannt. Suchen Sie sie über Datei > Öffnen."));
        return;
    }
    leave([this, path] { openNow(path); });
}

void MvProjectFlow::openNow(const QString &path)
{
    const QFileInfo file(path);
    const MvOutcome outcome = m_project->open(file);
    if (!outcome.isOk()) {
        tellUnreadable(file, outcome.error);
        return;
    }
    MvStudioSettings::addRecentFile(path);
    MvStudioSettings::setFolder(projectFolder, file.absolutePath());
    Q_EMIT recentFilesChanged();
    Q_EMIT message(tr("%1 geöffnet").arg(QDir::toNativeSeparators(file.absoluteFilePath())));
    if (!outcome.notes.isEmpty())
        MvStudioMessage::information(m_window,
                                     tr("Nicht alles konnte so übernommen werden, wie es in der Datei steht."),
                                     MvStudioMessage::shortened(outcome.notes, 10));
    Q_EMIT opened();
}

/// The version before the last saving lies beside the file, as a rule.
void MvProjectFlow::tellUnreadable(const QFileInfo &file, const QString &error)
{
    QMessageBox *box = MvStudioMessage::error(m_window, tr("Der Kalender lässt sich nicht öffnen."), error);
    for (const QFileInfo &backup : MvSafeFileWriter::backups(file)) {
        const MvProjectFile::Content content = MvProjectFile::read(backup);
        if (!content.isOk())
            continue;
        const QString time =
            MvApplicationLocale::instance().locale().toString(backup.lastModified(), QLocale::ShortFormat);
        box->setInformativeText(error + u"\n\n"_s +
                                tr("Eine frühere Fassung, vom %1, liegt daneben und ist unversehrt.").arg(time));
        QPushButton *take = box->addButton(tr("&Frühere Fassung öffnen"), QMessageBox::AcceptRole);
        take->setObjectName(u"openBackupButton"_s);
        box->setDefaultButton(take);
        connect(take, &QPushButton::clicked, this, [this, content, file] {
            // saving replaces the damaged file, as long as nobody else mends it
            m_project->openRecovered(content, file, QFileInfo(), MvFileGuard::stamp(file));
            Q_EMIT opened();
        });
        return;
    }
}

void MvProjectFlow::save()
{
    saveThen({});
}

void MvProjectFlow::saveAs()
{
    saveAsThen({});
}

void MvProjectFlow::leave(const Then &then)
{
    if (!m_project->isModified()) {
        then();
        return;
    }
    QMessageBox *box = MvStudioMessage::question(
        m_window, u"saveQuestion"_s, tr("„%1“ wurde geändert.").arg(m_project->displayName()),
        tr("Sollen die Änderungen gespeichert werden? Verworfenes ist nicht wiederzubekommen."));
    QPushButton *save = box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Save), QMessageBox::AcceptRole);
    QPushButton *discard =
        box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Discard), QMessageBox::DestructiveRole);
    QPushButton *cancel =
        box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Cancel), QMessageBox::RejectRole);
    save->setObjectName(u"saveButton"_s);
    discard->setObjectName(u"discardButton"_s);
    cancel->setObjectName(u"cancelButton"_s);
    box->setDefaultButton(save);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::buttonClicked, this, [this, then, save, discard](QAbstractButton *button) {
        if (button == save)
            saveThen(then);
        else if (button == discard)
            then();
    });
    box->open();
}

void MvProjectFlow::saveThen(const Then &then)
{
    const QString path = m_project->fileInfo().filePath();
    if (path.isEmpty())
        saveAsThen(then);
    else if (m_project->isFileChangedByOthers())
        askAboutOthersChanges(then);
    else
        write(path, then);
}

void MvProjectFlow::askAboutOthersChanges(const Then &then)
{
    QMessageBox *box = MvStudioMessage::question(
        m_window, u"changedByOthersQuestion"_s,
        tr("Die Datei %1 wurde inzwischen von anderer Hand geändert oder gelöscht.")
            .arg(QDir::toNativeSeparators(m_project->fileInfo().filePath())),
        tr("Ersetzen Sie sie durch Ihren Stand, oder speichern Sie ihn unter einem anderen Namen. Einträge, die von "
           "anderer Hand dazugekommen sind, bleiben auch beim Ersetzen."));
    QPushButton *replace = box->addButton(tr("Ersetzen"), QMessageBox::DestructiveRole);
    QPushButton *other = box->addButton(tr("Anderer Name …"), QMessageBox::AcceptRole);
    QPushButton *cancel =
        box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Cancel), QMessageBox::RejectRole);
    replace->setObjectName(u"replaceButton"_s);
    other->setObjectName(u"otherNameButton"_s);
    box->setDefaultButton(other);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::buttonClicked, this, [this, then, replace, other](QAbstractButton *button) {
        if (button == replace)
            write(m_project->fileInfo().filePath(), then);
        else if (button == other)
            saveAsThen(then);
    });
    box->open();
}

void MvProjectFlow::saveAsThen(const Then &then)
{
    QFileDialog *dialog = createFileDialog(tr("Kalender speichern"), QFileDialog::AcceptSave, m_window);
    dialog->setLabelText(QFileDialog::Accept, MvStudioMessage::buttonText(QDialogButtonBox::Save));
    if (!m_project->fileInfo().filePath().isEmpty())
        dialog->setDirectory(m_project->fileInfo().absolutePath());
    dialog->selectFile(MvFileName::cleaned(m_project->displayName()) + u'.' + MvProjectFile::suffix());
    connect(dialog, &QFileDialog::fileSelected, this, [this, then](const QString &path) {
        const bool isOwn = QFileInfo(path).absoluteFilePath() == m_project->fileInfo().absoluteFilePath();
        if (isOwn && m_project->isFileChangedByOthers())
            askAboutOthersChanges(then); // to replace the file that is seen is not yet to give up what is in it
        else
            write(path, then);
    });
    dialog->open();
}

void MvProjectFlow::write(const QString &path, const Then &then)
{
    const bool isSame = m_project->fileInfo().filePath() == path;
    const MvOutcome written = isSame ? m_project->save() : m_project->saveAs(QFileInfo(path));
    if (!written.isOk()) {
        QMessageBox *box = MvStudioMessage::error(
            m_window, tr("Der Kalender wurde nicht gespeichert."),
            tr("%1\nSpeichern Sie ihn unter einem anderen Namen oder in einem anderen Ordner.").arg(written.error));
        QPushButton *other = box->addButton(tr("Speichern &unter …"), QMessageBox::AcceptRole);
        other->setObjectName(u"saveElsewhereButton"_s);
        box->setDefaultButton(other);
        connect(other, &QPushButton::clicked, this, [this, then] { saveAsThen(then); });
        return;
    }
    MvStudioSettings::addRecentFile(path);
    MvStudioSettings::setFolder(projectFolder, QFileInfo(path).absolutePath());
    Q_EMIT recentFilesChanged();
    Q_EMIT message(tr("%1 gespeichert").arg(QDir::toNativeSeparators(path)));
    if (!written.notes.isEmpty())
        MvStudioMessage::information(m_window, tr("Der Kalender ist gespeichert."),
                                     MvStudioMessage::shortened(written.notes, 10));
    if (then)
        then();
}
