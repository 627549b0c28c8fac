// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageFoto.h"

#include "common/MvDraggedFotos.h"
#include "common/MvStudioSettings.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvFotoLoader.h"
#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvProject.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <cmath>
#include <memory>

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

MvPageFoto::MvPageFoto(MvProject *project, MvPageItem *item, MvPageSelection *selection, QWidget *parent)
    : QObject(parent)
    , m_project(project)
    , m_item(item)
    , m_selection(selection)
    , m_parent(parent)
{}

int MvPageFoto::frameForNew(const MvCalendarPage &page, const MvPageFormat &format)
{
    int first = -1;
    const QList<MvPageElement> elements = page.elementsOn(format);
    for (int number = 0; number < elements.size(); ++number) {
        const MvFotoElement *foto = elements.at(number).foto();
        if (foto && foto->isEmpty())
            return number;
        if (foto && first < 0)
            first = number;
    }
    return first;
}

/// -1 when the page has no photo.
int MvPageFoto::frameOfFoto() const
{
    const auto isThere = [this](int element) { return m_item->foto(element) && !m_item->foto(element)->isEmpty(); };
    if (m_selection->kind() == MvPageSelection::Kind::Foto)
        return isThere(m_selection->element()) ? m_selection->element() : -1;
    for (int element = 0; element < m_item->elements().size(); ++element)
        if (isThere(element))
            return element;
    return -1;
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
    if (m_selection->kind() == MvPageSelection::Kind::Foto)
        chooseFor(m_selection->element());
    else
        chooseFor(frameForNew(m_item->shownPage(), m_project->document().format()));
}

void MvPageFoto::chooseFor(int element)
{
    if (!m_item->foto(element)) {
        Q_EMIT message(tr("Auf dieser Seite ist kein Platz für ein Foto; wählen Sie eine andere Vorlage."));
        return;
    }
    auto *dialog = new QFileDialog(m_parent, tr("Foto für die Seite wählen"));
    dialog->setObjectName(u"photoDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({MvDraggedFotos::nameFilter(), tr("Alle Dateien (*)")});
    const QFileInfo present(m_item->foto(element)->path());
    dialog->setDirectory(!present.filePath().isEmpty() && QFileInfo(present.absolutePath()).isDir()
                             ? present.absolutePath()
                             : MvStudioSettings::fotoFolder());
    connect(dialog, &QFileDialog::fileSelected, this, [this, element](const QString &path) {
        MvStudioSettings::setFolderOfRequest(MvDiskAccessRequest::FotoFile, QFileInfo(path).absolutePath());
        set(element, path);
    });
    dialog->open();
}

void MvPageFoto::set(MvProject *project, const FrameId &frame, const QString &path, QObject *receiver,
                     const std::function<void(const QString &error)> &tell)
{
    const QFileInfo file(path);
    const auto isOpen = std::make_shared<bool>(true); // the calendar that the frame is of
    const QMetaObject::Connection watch =
        connect(project, &MvProject::documentReplaced, receiver, [isOpen] { *isOpen = false; });
    const auto take = [project, frame, path, file, tell, isOpen, watch](const QImage &image) {
        disconnect(watch);
        if (!*isOpen || frame.page < 0 || frame.page >= project->document().pages().size()) {
            tell(tr("Das Foto „%1“ ist nicht eingefügt: Die Seite, für die es gelesen wurde, ist nicht mehr offen.")
                     .arg(file.fileName()));
            return;
        }
        if (image.isNull()) {
            tell(tr("Das Foto „%1“ kann nicht gelesen werden. %2")
                     .arg(file.fileName(), MvImageLoader::instance().error(file)));
            return;
        }
        MvCalendarDocument document = project->document();
        MvCalendarPage page = document.pages().at(frame.page);
        if (page.isSimple() && frame.element == 0 && !page.fotoFrame().isValid())
            page.setFotoFrame(frameFor(path, document.format())); // its place follows from its proportions
        MvFotoElement foto = document.foto(frame);
        MvFotoElement fresh(path);
        if (const MvFotoPoolItem *known = document.fotoPool().find(fresh.path()))
            fresh.setFocus(known->focus);
        page.setFoto(frame.element, foto.withPictureOf(fresh));
        project->changePage(frame.page, page, tr("Foto einfügen"));
        tell({});
    };
    MvFotoLoader::midRes(MvFoto(file), decodedQuality, MvFotoAccess::NoCaching, receiver, take);
}

void MvPageFoto::set(const QString &path)
{
    if (m_selection->kind() == MvPageSelection::Kind::Foto)
        set(m_selection->element(), path);
    else
        set(frameForNew(m_item->shownPage(), m_project->document().format()), path);
}

void MvPageFoto::set(int element, const QString &path)
{
    set(m_project, {m_item->page(), element}, path, this,
        [this, name = QFileInfo(path).fileName()](const QString &error) {
            Q_EMIT message(error.isEmpty() ? tr("„%1“ ist jetzt das Foto der Seite.").arg(name) : error);
        });
}

void MvPageFoto::remove()
{
    changeFoto(frameOfFoto(), tr("Foto entfernen"),
               [](MvFotoElement &foto) { foto = foto.withPictureOf(MvFotoElement()); });
}

void MvPageFoto::addActions(QMenu *menu, int element)
{
    const int meant = m_item->foto(element) ? element : frameOfFoto();
    const bool hasPhoto = m_item->foto(meant) && !m_item->foto(meant)->isEmpty();
    QAction *choosing = menu->addAction(hasPhoto ? tr("Foto &ersetzen…") : tr("&Foto für die Seite wählen…"));
    choosing->setObjectName(u"choosePhoto"_s);
    connect(choosing, &QAction::triggered, this, [this, meant] { meant >= 0 ? chooseFor(meant) : choose(); });
    if (!hasPhoto)
        return;
    if (m_item->shownPage().isSimple() && meant == 0) {
        addPlacements(menu->addMenu(tr("&Platz des Fotos")));
        addSizes(menu->addMenu(tr("&Größe des Fotos")));
    }
    QAction *centring = menu->addAction(tr("Ausschnitt &zur Mitte"));
    centring->setObjectName(u"centrePhoto"_s);
    connect(centring, &QAction::triggered, this, [this, meant] {
        changeFoto(meant, tr("Ausschnitt des Fotos verschieben"), [](MvFotoElement &foto) {
            foto.setFocus({0.5, 0.5});
        });
    });
    QAction *removing = menu->addAction(tr("Foto ent&fernen"));
    removing->setObjectName(u"removePhoto"_s);
    connect(removing, &QAction::triggered, this, [this, meant] {
        changeFoto(meant, tr("Foto entfernen"), [](MvFotoElement &foto) { foto = foto.withPictureOf({}); });
    });
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
            changeFrame(tr("Platz des Fotos ändern"), [placement](MvFotoFrame &frame) {
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
            changeFrame(tr("Größe des Fotos ändern"),
                        [percent](MvFotoFrame &frame) { frame.setShare(percent / 100.0); });
        });
    }
}

void MvPageFoto::changeFrame(const QString &text, const std::function<void(MvFotoFrame &)> &edit)
{
    MvCalendarPage changed = m_item->shownPage();
    MvFotoFrame frame = changed.fotoFrame();
    edit(frame);
    changed.setFotoFrame(frame);
    m_project->changePage(m_item->page(), changed, text);
}

void MvPageFoto::changeFoto(int element, const QString &text, const std::function<void(MvFotoElement &)> &edit)
{
    const MvFotoElement *foto = m_item->foto(element);
    if (!foto)
        return;
    MvCalendarPage changed = m_item->shownPage();
    MvFotoElement edited = *foto;
    edit(edited);
    changed.setFoto(element, edited);
    m_project->changePage(m_item->page(), changed, text);
}
