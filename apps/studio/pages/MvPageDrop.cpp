// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageDrop.h"

#include "common/MvDraggedFotos.h"
#include "pages/MvPageDropTarget.h"
#include "pages/MvPageFoto.h"
#include "pages/MvPageItem.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProject/MvProject.h"

#include <QDropEvent>
#include <QFileInfo>

using namespace Qt::StringLiterals;

MvPageDrop::MvPageDrop(MvProject *project, MvPageItem *item, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_item(item)
    , m_shown(new MvPageDropTarget(item))
{
    m_resting.setSingleShot(true);
    m_resting.setInterval(restTime);
    connect(&m_resting, &QTimer::timeout, this, &MvPageDrop::rest);
}

bool MvPageDrop::enter(const QDropEvent *event, const QPointF &onPage)
{
    leave();
    if (m_item->pageRect().isEmpty() || !MvDraggedFotos::areIn(event->mimeData()))
        return false;
    m_paths = MvDraggedFotos::paths(event->mimeData());
    m_first = MvDraggedFotos::first(event->mimeData());
    move(event, onPage);
    return true;
}

void MvPageDrop::move(const QDropEvent *event, const QPointF &onPage)
{
    const QDate under = m_paths.size() == 1 && !m_first.isEmpty() ? m_item->dateAt(onPage) : QDate();
    if (m_item->dateAt(m_at) != under)
        m_restedOn = {};
    if (under.isValid() && (m_at != onPage || !m_resting.isActive()) && !m_restedOn.isValid())
        m_resting.start();
    m_at = onPage;
    const MvCalendarPage &page = m_item->shownPage();
    const int element = page.elementAt(onPage, m_project->document().format());
    const bool isForDay = under.isValid() && (under == m_restedOn || event->modifiers().testFlag(Qt::ShiftModifier));
    m_target = {};
    if (isForDay)
        m_target.date = under;
    else if (m_item->foto(element))
        m_target.element = element;
    else
        m_target.element = MvPageFoto::frameForNew(page, m_project->document().format());
    show();
}

/// The mouse has stayed over a day for a while: it is meant.
void MvPageDrop::rest()
{
    m_restedOn = m_item->dateAt(m_at);
    if (!isActive() || !m_restedOn.isValid())
        return;
    m_target = {m_restedOn, -1};
    show();
}

void MvPageDrop::leave()
{
    m_resting.stop();
    m_restedOn = {};
    m_target = {};
    m_paths.clear();
    m_first.clear();
    m_at = {};
    m_shown->hide();
}

QString MvPageDrop::textFor(int element) const
{
    if (m_paths.size() > 1 || m_first.isEmpty())
        return tr("Ab hier in die leeren Rahmen");
    if (m_item->shownPage().isSimple() && element == 0)
        return tr("Foto der Seite");
    const MvFotoElement *foto = m_item->foto(element);
    return foto && !foto->isEmpty() ? tr("Foto ersetzen") : tr("Foto in diesen Rahmen");
}

void MvPageDrop::show()
{
    const MvPageFormat format = m_project->document().format();
    if (m_target.date.isValid()) {
        const QLocale locale = MvApplicationLocale::instance().locale();
        m_shown->showAt(m_item->dateRect(m_target.date),
                        tr("Foto für den %1").arg(locale.toString(m_target.date, u"d. MMMM"_s)));
        return;
    }
    QRectF rect = m_target.element >= 0 && m_target.element < m_item->elements().size()
                      ? m_item->elements().at(m_target.element).rect()
                      : QRectF();
    if (rect.isEmpty() && m_item->shownPage().isSimple())
        rect = MvPageFoto::frameFor(m_first, format).place(format);
    m_shown->showAt(rect.isEmpty() ? m_item->pageRect() : rect & m_item->pageRect(), textFor(m_target.element));
}
