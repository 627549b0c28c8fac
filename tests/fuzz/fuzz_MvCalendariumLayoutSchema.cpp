// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvXML/MvXMLLoader.h"

#include <QPainter>

#include <memory>

/// A layout: whatever is read can be painted.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QDomElement root = MvXMLLoader::parse(MvFuzz::bytes(data, size)).documentElement();
    const MvCalendariumLayoutSchema layout(root);
    if (!layout.isValid())
        return 0;
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(layout);
    const std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(appearance));
    MvFuzz::check(renderer != nullptr, "every layout has a renderer");
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    renderer->minimumSizeHint();
    renderer->render(painter, {0, 0, 2000, 1500});
    return 0;
}
