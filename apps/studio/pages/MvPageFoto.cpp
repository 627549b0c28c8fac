// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageFoto.h"

#include "common/MvStudioSettings.h"
#include "pages/MvPageItem.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvFotoLoader.h"
#include "MvFoto/MvImageLoader.h"
#include "MvFoto/MvMediaFormat.h"
#include "MvProject/MvProject.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int decodedQuality = 3; // to see that a photo can be read; a page decodes it anew at its size

/// Beside a photo, the columns of a month need room for the names of holidays.
double usualShare(MvFotoFrame::Placement placement)
{
    constexpr double besideShare = 0.4;
    return placement == MvFotoFrame::Placement::Top ? MvFotoFrame::defaultShare : besideShare;
}

} // namespace

MvPageFoto::MvPageFoto(MvProject *project, MvPageItem *item, QWidget *parent)
    : QObject(parent)
    , m_project(project)
    , m_item(item)
    , m_parent(parent)
{}

QString MvPageFoto::fotoIn(const QMimeData *data)
{
    for (const QUrl &url : data->urls()) {
        const QString path = url.toLocalFile();
        if (!path.isEmpty() && !MvImageLoader::format(QFileInfo(path)).isEmpty())
            return path;
    }
    return {};
}

MvFotoFrame MvPageFoto::frameFor(const QString &path, const MvPageFormat &format)
{
    MvFotoFrame frame(path);
    const QSize foto = MvImageLoader::instance().size(QFileInfo(path));
    if (format.orientation() == MvPageFormat::Orientation::Landscape && foto.height() > foto.width()) {
        frame.setPlacement(MvFotoFrame::Placement::Left);
        frame.setShare(usualShare(frame.placement()));
    }
    return frame;
}

void MvPageFoto::choose()
{
    auto *dialog = new QFileDialog(m_parent, tr("Foto für die Seite wählen"));
    dialog->setObjectName(u"photoDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Fotos (%1)").arg(MvMediaFormat::namePatterns()), tr("Alle Dateien (*)")});
    const MvFotoFrame &frame = m_item->shownPage().fotoFrame();
    const QFileInfo present(frame.path());
    dialog->setDirectory(frame.isValid() && QFileInfo(present.absolutePath()).isDir() ? present.absolutePath()
                                                                                      : MvStudioSettings::fotoFolder());
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        MvStudioSettings::setFolderOfRequest(MvDiskAccessRequest::FotoFile, QFileInfo(path).absolutePath());
        set(path);
    });
    dialog->open();
}

void MvPageFoto::set(MvProject *project, int page, const QString &path, QObject *receiver,
                     const std::function<void(const QString &error)> &tell)
{
    const QFileInfo file(path);
    const auto take = [project, page, path, file, tell](const QImage &image) {
        if (image.isNull()) {
            tell(tr("Das Foto „%1“ kann nicht gelesen werden. %2")
                     .arg(file.fileName(), MvImageLoader::instance().error(file)));
            return;
        }
        const MvFotoFrame added = frameFor(path, project->document().format());
        change(project, page, tr("Foto einfügen"), [&](MvFotoFrame &frame) {
            if (frame.isValid()) {
                frame.setPath(path);
                frame.setFocus({0.5, 0.5});
            } else {
                frame = added;
            }
        });
        tell({});
    };
    MvFotoLoader::midRes(MvFoto(file), decodedQuality, MvFotoAccess::NoCaching, receiver, take);
}

void MvPageFoto::set(const QString &path)
{
    set(m_project, m_item->page(), path, this, [this, name = QFileInfo(path).fileName()](const QString &error) {
        Q_EMIT message(error.isEmpty() ? tr("„%1“ ist jetzt das Foto der Seite.").arg(name) : error);
    });
}

void MvPageFoto::remove()
{
    change(tr("Foto entfernen"), [](MvFotoFrame &frame) { frame = {}; });
}

void MvPageFoto::addActions(QMenu *menu)
{
    const bool hasPhoto = m_item->shownPage().fotoFrame().isValid();
    QAction *choosing = menu->addAction(hasPhoto ? tr("Foto &ersetzen…") : tr("&Foto für die Seite wählen…"));
    choosing->setObjectName(u"choosePhoto"_s);
    connect(choosing, &QAction::triggered, this, &MvPageFoto::choose);
    if (!hasPhoto)
        return;
    addPlacements(menu->addMenu(tr("&Platz des Fotos")));
    addSizes(menu->addMenu(tr("&Größe des Fotos")));
    QAction *centring = menu->addAction(tr("Ausschnitt &zur Mitte"));
    centring->setObjectName(u"centrePhoto"_s);
    connect(centring, &QAction::triggered, this, [this] {
        change(tr("Ausschnitt des Fotos verschieben"), [](MvFotoFrame &frame) { frame.setFocus({0.5, 0.5}); });
    });
    QAction *removing = menu->addAction(tr("Foto ent&fernen"));
    removing->setObjectName(u"removePhoto"_s);
    connect(removing, &QAction::triggered, this, &MvPageFoto::remove);
}

void MvPageFoto::addPlacements(QMenu *menu)
{
    using Placement = MvFotoFrame::Placement;
    auto *group = new QActionGroup(menu);
    const MvFotoFrame::Placement current = m_item->shownPage().fotoFrame().placement();
    const auto add = [&](Placement placement, const QString &text, const QString &name) {
        QAction *action = menu->addAction(text);
        action->setObjectName(name);
        action->setCheckable(true);
        action->setChecked(placement == current);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, placement] {
            change(tr("Platz des Fotos ändern"), [placement](MvFotoFrame &frame) {
                if (frame.share() == usualShare(frame.placement())) // one that nobody has changed
                    frame.setShare(usualShare(placement));
                frame.setPlacement(placement);
            });
        });
    };
    add(Placement::Top, tr("&Oben"), u"photoTop"_s);
    add(Placement::Left, tr("&Links"), u"photoLeft"_s);
    add(Placement::Right, tr("&Rechts"), u"photoRight"_s);
}

void MvPageFoto::addSizes(QMenu *menu)
{
    auto *group = new QActionGroup(menu);
    const int current = int(std::lround(m_item->shownPage().fotoFrame().share() * 100.0));
    for (const int percent : {30, 40, 50, 55, 60, 70, 75}) {
        QAction *action = menu->addAction(tr("%1 % der Seite").arg(percent));
        action->setObjectName(u"photoSize%1"_s.arg(percent));
        action->setCheckable(true);
        action->setChecked(percent == current);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, percent] {
            change(tr("Größe des Fotos ändern"), [percent](MvFotoFrame &frame) { frame.setShare(percent / 100.0); });
        });
    }
}

void MvPageFoto::change(const QString &text, const std::function<void(MvFotoFrame &)> &edit)
{
    change(m_project, m_item->page(), text, edit);
}

void MvPageFoto::change(MvProject *project, int page, const QString &text,
                        const std::function<void(MvFotoFrame &)> &edit)
{
    const QList<MvCalendarPage> &pages = project->document().pages();
    if (page < 0 || page >= pages.size())
        return;
    MvCalendarPage changed = pages.at(page);
    MvFotoFrame frame = changed.fotoFrame();
    edit(frame);
    changed.setFotoFrame(frame);
    project->changePage(page, changed, text);
}
