// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvMissingFotos.h"

#include "MvCore/MvBackground.h"
#include "MvProject/MvFotoRelocation.h"
#include "MvProject/MvProject.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 8;

} // namespace

MvMissingFotos::MvMissingFotos(MvProject *project, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_window(window)
    , m_isGivenUp(std::make_shared<std::atomic_bool>(false))
{
    m_pool.setMaxThreadCount(1);
    connect(project, &MvProject::documentReplaced, this, &MvMissingFotos::forget);
}

MvMissingFotos::~MvMissingFotos()
{
    *m_isGivenUp = true;
    m_pool.waitForDone();
}

/// Another project is open: whatever was asked for the one before means nothing any more.
void MvMissingFotos::forget()
{
    ++m_looks;
    *std::exchange(m_isGivenUp, std::make_shared<std::atomic_bool>(false)) = true;
    if (m_question)
        m_question->reject();
}

void MvMissingFotos::look()
{
    lookThen([this](const QStringList &missing) {
        if (!missing.isEmpty())
            tell(missing);
    });
}

/// Each file is opened for it, and the disk may be far away.
void MvMissingFotos::lookThen(const std::function<void(const QStringList &missing)> &use)
{
    MvBackground::start(m_pool,
                        [this, document = m_project->document(), use, number = ++m_looks, isGivenUp = m_isGivenUp] {
                            const QStringList missing = *isGivenUp ? QStringList() : document.missingFotos();
                            const auto tellLatest = [this, missing, use, number] {
                                if (number == m_looks) // else something else was opened or asked for by now
                                    use(missing);
                            };
                            if (!*isGivenUp)
                                QMetaObject::invokeMethod(this, tellLatest, Qt::QueuedConnection);
                        });
}

void MvMissingFotos::tell(const QStringList &missing)
{
    QStringList paths;
    for (const QString &path : missing)
        paths.append(QDir::toNativeSeparators(path));
    QMessageBox *box = MvStudioMessage::question(
        m_window, u"missingPhotosMessage"_s,
        tr("%n Fotos sind nicht da oder lassen sich nicht lesen:", nullptr, int(paths.size())),
        MvStudioMessage::shortened(paths, mostLines) + u"\n\n"_s +
            tr("Wenn sie in einen anderen Ordner gekommen sind, zeigen Sie ihn: Alle Fotos, "
               "die darin liegen, werden an ihren Namen erkannt."));
    QPushButton *search = box->addButton(tr("In Ordner &suchen …"), QMessageBox::AcceptRole);
    QPushButton *later = box->addButton(tr("S&päter"), QMessageBox::RejectRole);
    search->setObjectName(u"searchPhotosButton"_s);
    box->setDefaultButton(search);
    box->setEscapeButton(later);
    connect(box, &QMessageBox::buttonClicked, this, [this, search](QAbstractButton *button) {
        if (button == search)
            chooseFolder();
    });
    m_question = box;
    box->open();
}

void MvMissingFotos::chooseFolder()
{
    auto *dialog = new QFileDialog(m_window, tr("In welchem Ordner liegen die Fotos?"), MvStudioSettings::fotoFolder());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"photoFolderDialog"_s);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this, &MvMissingFotos::searchIn);
    m_question = dialog;
    dialog->open();
}

void MvMissingFotos::search()
{
    lookThen([this](const QStringList &missing) {
        if (missing.isEmpty())
            Q_EMIT message(tr("Kein Foto fehlt"));
        else
            tell(missing);
    });
}

void MvMissingFotos::searchIn(const QString &folder)
{
    MvBackground::start(m_pool, [this, document = m_project->document(), folder, isGivenUp = m_isGivenUp] {
        const QStringList missing = MvFotoRelocation::missing(document);
        const QHash<QString, QString> found =
            MvFotoRelocation::find(missing, document.fotoPool(), folder, [&isGivenUp] { return !*isGivenUp; });
        const auto takeWanted = [this, found, count = int(missing.size()), isGivenUp] {
            if (!*isGivenUp)
                take(found, count);
        };
        if (!*isGivenUp) // the destructor waits for this task, so that the object is still there
            QMetaObject::invokeMethod(this, takeWanted, Qt::QueuedConnection);
    });
    Q_EMIT message(tr("Die Fotos werden gesucht …"));
}

/// All pages in one step. Pages that have got another photo meanwhile keep it.
void MvMissingFotos::take(const QHash<QString, QString> &found, int missing)
{
    if (!found.isEmpty())
        m_project->change(MvFotoRelocation::relocated(m_project->document(), found), tr("Fotos wiederfinden"));
    if (found.size() == missing)
        Q_EMIT message(tr("%n Fotos gefunden", nullptr, missing));
    else
        MvStudioMessage::information(
            m_window, tr("%n Fotos gefunden", nullptr, int(found.size())),
            tr("%n Fotos liegen nicht in diesem Ordner. Über Datei > Fehlende Fotos suchen können Sie einen anderen "
               "zeigen.",
               nullptr, missing - int(found.size())));
}
