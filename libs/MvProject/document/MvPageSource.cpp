// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageSource.h"

#include "MvModelBase/MvRenderingRule.h"

#include <QCoreApplication>
#include <QPainter>

MvPageSource MvPageSource::part(const QList<int> &places) const
{
    MvPageSource some = *this;
    some.documentPages = documentPageCount();
    some.pages.clear();
    some.numbers.clear();
    some.names.clear();
    some.kinds.clear();
    some.bindings.clear();
    QList<int> taken;
    for (const int place : places) {
        if (place < 0 || place >= pages.size())
            continue;
        taken.append(place);
        some.pages.append(pages[place]);
        some.numbers.append(number(place));
        some.names.append(names.value(place));
        some.kinds.append(kind(place));
        some.bindings.append(bindings.value(place));
    }
    if (paint)
        some.paint = [paint = paint, taken](QPainter &painter, int page) { paint(painter, taken[page]); };
    if (content)
        some.content = [content = content, taken](int page) { return content(taken[page]); };
    return some;
}

MvOutcome MvPageSource::check() const
{
    if (!format.isValid())
        return {QCoreApplication::translate("MvPageSource", "Die Seite hat keine Größe"), {}};
    if (pages.isEmpty() || !paint)
        return {QCoreApplication::translate("MvPageSource", "Der Kalender hat keine Seiten"), {}};
    return {};
}

void MvPageSource::paintPage(QPainter &painter, int page, const QPointF &corner, double scale) const
{
    const QPainter::RenderHints hints = painter.renderHints();
    painter.save();
    painter.translate(corner);
    painter.scale(scale, scale);
    painter.setClipRect(format.mediaRect());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    MvRenderingRule(MvRenderingRule::Print).encodeInto(painter);
    paint(painter, page);
    painter.restore();
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(hints);
}
