// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvMissingFotos.h"

#include "MvProject/MvProject.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"

#include <QDir>
#include <QDirIterator>
#include <QFileDialog>
#include <QPushButton>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 8;

/// How many folders from the file upwards have the same names; half a point less when letters differ in their case.
double likeness(const QString &missing, const QString &found)
{
    const QStringList a = missing.split(u'/');
    const QStringList b = found.split(u'/');
    double points = a.last() == b.last() ? 0.5 : 0.0;
    for (qsizetype i = 2; i <= a.size() && i <= b.size() && a[a.size() - i] == b[b.size() - i]; ++i)
        points += 1.0;
    return points;
}

} // namespace

MvMissingFotos::MvMissingFotos(MvProject *project, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_window(window)
    , m_isGivenUp(std::make_shared<std::atomic_bool>(false))
{
    m_pool.setMaxThreadCount(1);
}

MvMissingFotos::~MvMissingFotos()
{
    *m_isGivenUp = true;
    m_pool.waitForDone();
}

QHash<QString, QString> MvMissingFotos::find(const QStringList &missing, const QString &folder,
                                             const std::atomic_bool &isGivenUp)
{
    QMultiHash<QString, QString> byName;
    for (const QString &path : missing)
        byName.insert(QFileInfo(path).fileName().toCaseFolded(), path);
    QHash<QString, QString> found;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext() && !isGivenUp) {
        const QString file = files.next();
        for (const QString &path : byName.values(files.fileName().toCaseFolded())) {
            const auto known = found.constFind(path);
            if (known == found.constEnd() || likeness(path, file) > likeness(path, *known))
                found.insert(path, file);
        }
    }
    return found;
}

void MvMissingFotos::look()
{
    QStringList paths;
    for (const QString &path : m_project->document().missingFotos())
        paths.append(QDir::toNativeSeparators(path));
    if (paths.isEmpty())
        return;
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
    dialog->open();
}

void MvMissingFotos::search()
{
    if (m_project->document().missingFotos().isEmpty())
        Q_EMIT message(tr("Kein Foto fehlt"));
    else
        look();
}

void MvMissingFotos::searchIn(const QString &folder)
{
    Q_EMIT message(tr("Die Fotos werden gesucht …"));
    const QStringList missing = m_project->document().missingFotos();
    m_pool.start([this, missing, folder, isGivenUp = m_isGivenUp] {
        const QHash<QString, QString> found = find(missing, folder, *isGivenUp);
        if (!*isGivenUp) // the destructor waits for this task, so that the object is still there
            QMetaObject::invokeMethod(this, [this, found, count = int(missing.size())] { take(found, count); });
    });
}

/// All pages in one step. Pages that have got another photo meanwhile keep it.
void MvMissingFotos::take(const QHash<QString, QString> &found, int missing)
{
    MvCalendarDocument document = m_project->document();
    for (int number = 0; number < document.pages().size(); ++number) {
        MvCalendarPage page = document.pages().at(number);
        MvFotoFrame frame = page.fotoFrame();
        const QString path = found.value(frame.path());
        if (path.isEmpty())
            continue;
        frame.setPath(path);
        page.setFotoFrame(frame);
        document.setPage(number, page);
    }
    if (!found.isEmpty())
        m_project->change(document, tr("Fotos wiederfinden"));
    if (found.size() == missing)
        Q_EMIT message(tr("%n Fotos gefunden", nullptr, missing));
    else
        MvStudioMessage::information(
            m_window, tr("%n Fotos gefunden", nullptr, int(found.size())),
            tr("%n Fotos liegen nicht in diesem Ordner. Über Datei > Fehlende Fotos suchen können Sie einen anderen "
               "zeigen.",
               nullptr, missing - int(found.size())));
}
