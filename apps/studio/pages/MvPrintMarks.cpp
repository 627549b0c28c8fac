// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPrintMarks.h"

#include "pages/MvPageItem.h"

#include "MvProject/MvProject.h"

#include <QPainter>

namespace {

const QColor trimColor(0xc0, 0x1c, 0x8c); // the magenta of layout programs: no photo has it
const QColor safeColor(0x1b, 0x7f, 0xb8);
const QColor bindingColor(0xb8, 0x5c, 0x00, 0x60);
constexpr double reach = 60.0; // beyond the page, so that its bleed is inside

} // namespace

MvPrintMarks::MvPrintMarks(const MvProject *project, MvPageItem *item)
    : QGraphicsItem(item)
    , m_project(project)
    , m_item(item)
{
    setZValue(3.0);
    setAcceptedMouseButtons(Qt::NoButton);
    setVisible(false);
}

QRectF MvPrintMarks::boundingRect() const
{
    return m_item->boundingRect().adjusted(-reach, -reach, reach, reach);
}

void MvPrintMarks::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget * /*widget*/)
{
    const MvPageFormat &format = m_project->document().format();
    if (!format.isValid() || m_item->pageRect().isEmpty())
        return;
    const QRectF binding = m_project->document().bindingRect(m_item->page());
    if (!binding.isEmpty()) {
        QBrush hatch(bindingColor, Qt::BDiagPattern);
        hatch.setTransform(painter->worldTransform().inverted()); // as fine on every scale
        painter->fillRect(binding, hatch);
    }
    const auto outline = [painter](const QRectF &rect, const QColor &color, Qt::PenStyle style) {
        QPen pen(color, 1.2, style);
        pen.setCosmetic(true);
        painter->setPen(pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect);
    };
    outline(format.trimRect(), trimColor, Qt::SolidLine);
    outline(m_project->document().safeRect(m_item->page()), safeColor, Qt::DashLine);
    if (format.bleed() > 0.0)
        outline(format.mediaRect(), trimColor, Qt::DotLine);
}
