// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvFotoFlow.h"

#include "common/MvCalendarHabits.h"
#include "common/MvDraggedFotos.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvProject.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostLines = 8;

MvCalendarDocument withPool(MvCalendarDocument document, const QList<MvFotoPoolItem> &items)
{
    MvFotoPool pool = document.fotoPool();
    pool.add(items);
    document.setFotoPool(pool);
    return document;
}

/// A photo of the pool as it stands in a frame.
MvFotoElement fotoOf(const MvFotoElement &frame, const MvFotoPoolItem &item)
{
    MvFotoElement foto(item.path);
    foto.setFocus(item.focus);
    return frame.withPictureOf(foto);
}

MvCalendarDocument filledFrom(MvCalendarDocument document, const QList<MvFotoPoolItem> &items,
                              const MvCalendarDocument::FrameId &first)
{
    const QList<MvCalendarDocument::FrameId> frames = document.frames();
    qsizetype next = 0;
    bool isAfter = false;
    for (const MvCalendarDocument::FrameId &frame : frames) {
        const bool isFirst = frame == first;
        isAfter = isAfter || isFirst || frame.page > first.page;
        if (!isAfter || next == items.size() || (!isFirst && !document.foto(frame).isEmpty()))
            continue;
        document.setFoto(frame, fotoOf(document.foto(frame), items.at(next++)));
    }
    return document;
}

} // namespace

MvFotoFlow::MvFotoFlow(MvProject *project, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_window(window)
    , m_intake(new MvFotoPoolIntake(this))
{
    connect(m_intake, &MvFotoPoolIntake::progressed, this, &MvFotoFlow::progress);
    connect(m_intake, &MvFotoPoolIntake::finished, this, &MvFotoFlow::take);
    connect(project, &MvProject::documentReplaced, this, &MvFotoFlow::forget);
}

MvFotoFlow::~MvFotoFlow() = default;

void MvFotoFlow::askForFiles()
{
    askForPaths(m_window, false, [this](const QStringList &paths) { add(paths); });
}

void MvFotoFlow::askForFolder()
{
    askForPaths(m_window, true, [this](const QStringList &paths) { add(paths); });
}

void MvFotoFlow::askForNewFiles()
{
    askForPaths(m_window, false, [this](const QStringList &paths) { startCalendar(paths); });
}

void MvFotoFlow::askForNewFolder()
{
    askForPaths(m_window, true, [this](const QStringList &paths) { startCalendar(paths); });
}

void MvFotoFlow::askForPaths(QWidget *parent, bool isFolder, const std::function<void(const QStringList &)> &then)
{
    auto *dialog = new QFileDialog(parent, isFolder ? tr("Ordner mit Fotos wählen") : tr("Fotos wählen"),
                                   MvStudioSettings::fotoFolder());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(isFolder ? u"photoFolderDialog"_s : u"photosDialog"_s);
    dialog->setFileMode(isFolder ? QFileDialog::Directory : QFileDialog::ExistingFiles);
    if (isFolder)
        dialog->setOption(QFileDialog::ShowDirsOnly);
    else
        dialog->setNameFilters({MvDraggedFotos::nameFilter(), tr("Alle Dateien (*)")});
    connect(dialog, &QFileDialog::filesSelected, parent, [isFolder, then](const QStringList &paths) {
        if (paths.isEmpty())
            return;
        const QFileInfo first(paths.constFirst());
        MvStudioSettings::setFolderOfRequest(MvDiskAccessRequest::FotoFile,
                                             isFolder ? first.absoluteFilePath() : first.absolutePath());
        then(paths);
    });
    dialog->open();
}

void MvFotoFlow::add(const QStringList &paths)
{
    read(paths, tr("Fotos hinzufügen"), &withPool);
}

void MvFotoFlow::fillFrom(const QStringList &paths, int page, int element)
{
    QList<MvFotoPoolItem> known; // from the tray
    QStringList fresh;
    for (const QString &path : paths) {
        if (const MvFotoPoolItem *item = m_project->document().fotoPool().find(path))
            known.append(*item);
        else
            fresh.append(path);
    }
    const QString step = tr("Fotos einfügen");
    const Use use = [known, page, element](const MvCalendarDocument &document, const QList<MvFotoPoolItem> &items) {
        return filledFrom(withPool(document, items), known + items, {page, element});
    };
    if (fresh.isEmpty())
        m_project->change(use(m_project->document(), {}), step);
    else
        read(fresh, step, use);
}

MvCalendarDocument MvFotoFlow::newDocument() const
{
    MvCalendarDocument habits;
    MvCalendariumHolidayConfig holidays = habits.holidayConfig();
    holidays.setProvince({}); // nobody has said where yet
    habits.setHolidayConfig(holidays);
    MvCalendarHabits::applyTo(habits);
    MvNewCalendar wanted;
    wanted.range = habits.range();
    wanted.format = habits.format();
    wanted.holidays = habits.holidayConfig();
    wanted.themeId = m_theme;
    wanted.title = MvCalendarTitle::ofRange(habits.range(), habits.holidayConfig().language());
    return wanted.make();
}

void MvFotoFlow::startCalendar(const QStringList &paths)
{
    Q_EMIT leaveRequested([this, paths] { begin(newDocument(), paths); });
}

void MvFotoFlow::begin(const MvCalendarDocument &document, const QStringList &paths)
{
    m_project->newProject(document);
    if (paths.isEmpty())
        return;
    read(paths, tr("Fotos verteilen"), [](const MvCalendarDocument &empty, const QList<MvFotoPoolItem> &items) {
        return MvFotoDistribution::distribute(withPool(empty, items)).document;
    });
}

void MvFotoFlow::distribute()
{
    const MvFotoDistribution::Result result = MvFotoDistribution::distribute(m_project->document());
    if (result.placed == 0) {
        Q_EMIT message(tr("Es ist alles verteilt: Kein Rahmen ist leer, oder kein Foto ist mehr frei."));
        return;
    }
    m_project->change(result.document, tr("Fotos verteilen"));
    Q_EMIT message(tr("%n Fotos verteilt.", nullptr, result.placed));
}

void MvFotoFlow::read(const QStringList &paths, const QString &step, const Use &use)
{
    if (paths.isEmpty())
        return;
    if (!m_readings.isEmpty() && m_readings.constLast().use) {
        Q_EMIT message(tr("Es werden schon Fotos gelesen. Warten Sie einen Augenblick."));
        return;
    }
    m_readings.append({step, use});
    Q_EMIT progress(0, 0);
    m_intake->start(paths, m_project->document().fotoPool());
}

void MvFotoFlow::cancel()
{
    m_intake->cancel();
}

/// The photos were meant for the calendar that was open.
void MvFotoFlow::forget()
{
    if (m_readings.isEmpty())
        return;
    const bool isNews = bool(std::exchange(m_readings.last().use, {}));
    m_intake->cancel();
    Q_EMIT progress(0, -1);
    if (isNews)
        Q_EMIT message(tr("Keine Fotos übernommen: Der Kalender, für den sie gelesen wurden, ist nicht mehr offen."));
}

void MvFotoFlow::take(const MvFotoPoolIntake::Result &result)
{
    const Reading reading = m_readings.takeFirst();
    if (!reading.use)
        return;
    Q_EMIT progress(0, -1);
    if (!result.isCancelled || !result.items.isEmpty())
        m_project->change(reading.use(m_project->document(), result.items), reading.step);
    tell(result);
}

void MvFotoFlow::tell(const MvFotoPoolIntake::Result &result)
{
    const int taken = int(result.items.size());
    const QStringList lines = result.toStrings(mostLines);
    if (taken == 0 && result.known > 0)
        Q_EMIT message(tr("Diese Fotos liegen schon bereit."));
    else if (taken == 0 && !result.isCancelled)
        MvStudioMessage::information(m_window, tr("Darin ist kein Foto, das sich lesen lässt."), lines.join(u'\n'));
    else if (lines.isEmpty())
        Q_EMIT message(tr("%n Fotos hinzugefügt.", nullptr, taken));
    else
        MvStudioMessage::information(m_window, tr("%n Fotos hinzugefügt.", nullptr, taken), lines.join(u'\n'));
}
