// SPDX-License-Identifier: LGPL-2.1-or-later
// Twelve months painted on a device that does nothing: what a program spends on pages before a pixel is made.
#include "../MvBenchPages.h"

#include "MvCore/MvInitializer.h"
#include "MvCore/MvProcessTimeZone.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"

#include <QGuiApplication>
#include <QPaintEngine>

namespace {

/// Takes all calls and draws nothing.
class NoEngine : public QPaintEngine
{
public:
    NoEngine()
        : QPaintEngine(AllFeatures)
    {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override {}
    void drawTextItem(const QPointF &, const QTextItem &) override {}
    void drawLines(const QLineF *, int) override {}
    void drawRects(const QRectF *, int) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    Type type() const override { return User; }
};

/// An A4 at 300 dpi.
class NoPage : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return 3508;
        case PdmHeight:
            return 2480;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 300;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    mutable NoEngine m_engine;
};

} // namespace

int main(int argc, char **argv)
{
    MvProcessTimeZone::askOnce();
    MvFontSupply::makeOnDemand();
    const QGuiApplication application(argc, argv);
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
    document.setAppearance(MvBenchPages::appearance(QStringLiteral("MONTH_GRID_CLASSIC")));
    document.setHolidayConfig(MvBenchPages::holidays(false));
    const MvPageSource source = document.pageSource();
    NoPage page;
    for (int number = 0; number < source.pages.size(); ++number) {
        QPainter painter(&page);
        source.paintPage(painter, number, {}, 300.0 / 254.0);
    }
    return source.pages.size() == 12 ? 0 : 1;
}
