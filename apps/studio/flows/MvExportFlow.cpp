// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvExportFlow.h"

#include "MvCore/MvFileName.h"
#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvExportJob.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"
#include "common/MvProgressDialog.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"
#include "flows/MvExportDialog.h"

#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QUrl>
#include <QWidget>

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 8; // of each kind, so that the message fits small screens

} // namespace

MvExportFlow::MvExportFlow(MvProject *project, MvPrintWatch *watch, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_watch(watch)
    , m_window(window)
{}

void MvExportFlow::start(MvExportOptions::Kind kind)
{
    if (isRunning())
        return;
    const MvCalendarDocument &document = m_project->document();
    if (!document.isValid() || document.pages().isEmpty()) {
        MvStudioMessage::error(m_window, tr("Der Kalender hat keine Seiten zum Exportieren."));
        return;
    }
    const int page = qBound(0, m_currentPage, int(document.pages().size()) - 1);
    auto *dialog = new MvExportDialog(kind, document, page, MvStudioSettings::folder(u"export"_s),
                                      MvFileName::cleaned(m_project->displayName()), m_watch, m_window);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        const MvExportOptions options = dialog->options();
        MvExportDialog::remember(options);
        if (dialog->hasToldEverything())
            run(options);
        else
            warnAndRun(options);
    });
    connect(dialog, &MvExportDialog::placeWanted, this, &MvExportFlow::placeWanted);
    dialog->open();
}

void MvExportFlow::warnAndRun(const MvExportOptions &options)
{
    const QStringList faults = gravest(options);
    if (faults.isEmpty()) {
        run(options);
        return;
    }
    QMessageBox *box = MvStudioMessage::question(
        m_window, u"missingPhotosQuestion"_s, tr("Das würde nicht gut gedruckt:"),
        MvStudioMessage::shortened(faults, mostLines) + u"\n\n"_s +
            tr("Plätze ohne Foto bleiben leer. Die ganze Liste steht unter Datei > Vor dem Druck prüfen."));
    QPushButton *go = box->addButton(tr("Trotzdem exportieren"), QMessageBox::AcceptRole);
    QPushButton *cancel =
        box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Cancel), QMessageBox::RejectRole);
    go->setObjectName(u"exportAnywayButton"_s);
    box->setDefaultButton(cancel);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::buttonClicked, this, [this, options, go](QAbstractButton *button) {
        if (button == go)
            run(options);
    });
    box->open();
}

/// What everybody would see, and texts apart: they are told with the result.
QStringList MvExportFlow::gravest(const MvExportOptions &options) const
{
    using Kind = MvPrintFinding::Kind;
    QStringList lines;
    for (const int page : options.pages) {
        for (const MvPrintFinding &finding : MvPrintCheck::ofPage(m_project->document(), page)) {
            const bool isText = finding.kind == Kind::CutText || finding.kind == Kind::MissingGlyphs;
            if (finding.kind == Kind::EmptyFrame || (finding.severity == MvPrintFinding::Severity::Strong && !isText))
                lines.append(finding.toString());
        }
    }
    return lines;
}

void MvExportFlow::run(const MvExportOptions &options)
{
    if (isRunning())
        return;
    MvExportTarget target(options.target);
    m_press = {};
    if (!options.press.isEmpty()) {
        const MvPressProfile::Loaded loaded = MvPressProfile::load(options.press);
        if (!loaded.isOk()) {
            MvStudioMessage::error(m_window, tr("Der Kalender wurde nicht exportiert."), loaded.error);
            return;
        }
        m_press = options.forPress;
        m_press.profile = loaded.profile;
        target.setPress(m_press);
    }
    target.setSheets(options.sheets);
    m_options = options;
    MvCalendarDocument document = m_project->document();
    MvPageFormat format = document.format();
    format.setBleed(options.bleed);
    document.setFormat(format);
    m_job = new MvExportJob(document, target, options.dpi, this);
    m_job->setPages(options.pages);
    auto *dialog = new MvProgressDialog(
        tr("Exportieren"), tr("Die Seiten werden geschrieben: %1").arg(QFileInfo(options.target).fileName()), m_window);
    connect(m_job, &MvExportJob::progress, dialog, &MvProgressDialog::setProgress);
    connect(m_job, &MvExportJob::finished, dialog, &MvProgressDialog::finish);
    connect(dialog, &MvProgressDialog::canceled, m_job, &MvExportJob::cancel);
    connect(m_job, &MvExportJob::finished, this, &MvExportFlow::finish);
    dialog->open();
    m_job->start();
}

void MvExportFlow::finish(const MvExportResult &result)
{
    MvExportJob *job = std::exchange(m_job, nullptr);
    job->deleteLater();
    if (result.isCancelled) {
        Q_EMIT message(result.files.isEmpty()
                           ? tr("Export abgebrochen; nichts wurde geschrieben")
                           : tr("Export abgebrochen; fertig sind %n Dateien", nullptr, int(result.files.size())));
        return;
    }
    if (!result.error.isEmpty()) {
        MvStudioMessage::error(m_window, tr("Der Kalender wurde nicht exportiert."), result.error);
        return;
    }
    tellDone(result, printNotes(*job, result));
}

void MvExportFlow::tellDone(const MvExportResult &result, const QString &notes)
{
    const QString folder = result.files.value(0).absolutePath();
    const QString what =
        result.files.size() == 1
            ? QDir::toNativeSeparators(result.files.first().absoluteFilePath())
            : tr("%n Dateien in %1", nullptr, int(result.files.size())).arg(QDir::toNativeSeparators(folder));
    Q_EMIT message(tr("Exportiert: %1").arg(what));
    QMessageBox *box = MvStudioMessage::information(m_window, tr("Der Kalender ist exportiert: %1").arg(what), notes);
    QPushButton *openFolder = box->addButton(tr("&Ordner öffnen"), QMessageBox::ActionRole);
    openFolder->setObjectName(u"openFolderButton"_s);
    connect(openFolder, &QPushButton::clicked, box,
            [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
}

/// What will not print well, for a person; empty when all does.
QString MvExportFlow::printNotes(const MvExportJob &job, const MvExportResult &result) const
{
    QStringList texts;
    QStringList others;
    QStringList missing = result.missingFotos;
    for (const int page : m_options.pages) {
        for (const MvPrintFinding &found : MvPrintCheck::ofPaintedPage(job.document(), page, job.findings(page))) {
            (found.kind == MvPrintFinding::Kind::CutText ? texts : others).append(found.toString());
            missing.removeAll(found.path);
        }
    }
    for (const QString &path : std::as_const(missing)) // those of days, and what is there again by now
        others.append(tr("Das Foto „%1“ fehlt in der Ausgabe. %2")
                          .arg(QFileInfo(path).fileName(), MvImageLoader::instance().error(QFileInfo(path))));
    for (const MvInkUse &ink : result.inks) {
        if (std::round(ink.percent) > m_press.usedInkLimit())
            others.append(tr("%1: zu viel Farbe, %2 % (erlaubt sind %3 %)")
                              .arg(MvPrintCheck::pageName(job.document(), ink.page))
                              .arg(std::round(ink.percent))
                              .arg(m_press.usedInkLimit()));
    }
    QStringList parts;
    if (!texts.isEmpty())
        parts.append(tr("Diese Texte hatten keinen Platz und sind gekürzt:") + u'\n' +
                     MvStudioMessage::shortened(texts, mostLines));
    if (!others.isEmpty())
        parts.append(tr("Sehen Sie vor dem Druck nach:") + u'\n' + MvStudioMessage::shortened(others, mostLines));
    return parts.join(u"\n\n"_s);
}
