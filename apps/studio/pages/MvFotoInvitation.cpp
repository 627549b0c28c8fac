// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFotoInvitation.h"

#include "pages/MvPageItem.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QGraphicsView>

using namespace Qt::StringLiterals;

namespace {

constexpr int air = 8; // pixels to the page's edges

} // namespace

MvFotoInvitation::MvFotoInvitation(const MvPageItem *item, QGraphicsView *view)
    : QPushButton(MvIconRegistry::instance().icon(u"ico_studio_photo_add"_s), tr("Foto hierher ziehen oder klicken"),
                  view->viewport())
    , m_item(item)
    , m_view(view)
{
    setObjectName(u"photoInvite"_s);
    setCursor(Qt::ArrowCursor);
    setAutoDefault(false);
    hide();
    connect(item, &MvPageItem::refreshed, this, &MvFotoInvitation::follow);
}

void MvFotoInvitation::follow()
{
    const MvCalendarPage &page = m_item->shownPage();
    const QRect sheet = m_view->mapFromScene(m_item->mapToScene(m_item->pageRect()).boundingRect()).boundingRect();
    const QSize size = sizeHint();
    const bool hasRoom = sheet.width() > 2 * size.width();
    if (!page.isSimple() || page.fotoFrame().isValid() || !hasRoom) {
        hide();
        return;
    }
    const QRect room = sheet & m_view->viewport()->rect();
    setGeometry(QRect(QPoint(room.right() - size.width() - air, room.top() + air), size));
    show();
}
