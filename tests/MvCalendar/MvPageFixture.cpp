// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageFixture.h"

#include "MvBoxFont.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvXML/MvXMLLoader.h"

#include <QPainter>

using namespace Qt::StringLiterals;

MvCalendariumAppearance MvPageFixture::appearance(const QString &renderInfo, const QString &cells, const QString &type)
{
    const QString xml = u"<calendararea layoutschema='L' type='%1' renderinfo='%2'>%3</calendararea>"_s;
    const QDomDocument layout = MvXMLLoader::parse(xml.arg(type, renderInfo, cells).toUtf8());
    const QDomDocument colors = MvXMLLoader::parse(
        "<calendararea><border color='black' width='2'/><celldefault bgcolor='#ffffff' textcolor='#000000'/>"
        "<cell type='CALENDAR_CELL_TYPE_HOLIDAY' bgcolor='#ff0000' textcolor='#aa0000'/>"
        "<cell type='CALENDAR_CELL_TYPE_SCHOOL_VACATION' bgcolor='#0000ff'/>"
        "<cell type='CALENDAR_CELL_TYPE_SATURDAY' bgcolor='#00ff00'/>"
        "<cell type='CALENDAR_CELL_TYPE_WEEKDAY' bgcoloreven='#eeeeee' bgcolorodd='#dddddd'/></calendararea>");
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(MvCalendariumLayoutSchema(layout.documentElement()));
    appearance.setColorSchema(MvCalendariumColorSchema(colors.documentElement()));
    return appearance;
}

QString MvPageFixture::defaultCells()
{
    const QString numbers = u"CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY"_s;
    const QString heads = u"CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_HEAD_WEEKDAY, "
                          "CALENDAR_CELL_TYPE_HEAD_SATURDAY, CALENDAR_CELL_TYPE_HEAD_SUNDAY, "
                          "CALENDAR_CELL_TYPE_TOPLINE, CALENDAR_CELL_TYPE_WEEK_OF_YEAR, CALENDAR_CELL_TYPE_MONTH"_s;
    return u"<cell type='%1' textalign='AlignLeft|AlignTop' bordertype='CALENDAR_BORDER_LEFT, CALENDAR_BORDER_TOP' "
           "paddingleft='10' paddingtop='10' paddingright='10' paddingbottom='10'>"
           "<font family='%3' pointsize='18'/></cell>"
           "<cell type='%2' textalign='AlignLeft|AlignTop'><font family='%3' pointsize='9'/></cell>"_s.arg(
               numbers, heads, MvBoxFont::family());
}

MvCalendariumContentConfig MvPageFixture::content(const QDate &month, int features)
{
    const MvCalendariumHolidayConfig holidays(MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(features));
    return MvCalendariumContentConfig(month, holidays);
}

MvPageFixture::MvPageFixture(const MvCalendariumAppearance &appearance, const QDate &month, int features)
    : m_renderer(MvCalendariumRendererFactory::instance().createRenderer(appearance))
{
    const MvDateRange year(QDate(month.year(), 1, 1), QDate(month.year(), 12, 31));
    m_renderer->setCalendarInformation(content(month, features), year);
    QObject::connect(m_renderer.get(), &MvCalendariumRenderer::rectForDateFound,
                     [this](const QDate &date, const QRectF &rect) {
                         days.append({date, rect});
                     });
    QObject::connect(m_renderer.get(), &MvCalendariumRenderer::rectForDatesRestart, [this] {
        days.clear();
        ++restarts;
    });
}

MvPaintRecording MvPageFixture::render(const QRectF &rect, unsigned renderingRule)
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setRenderHint(QPainter::Antialiasing);
    MvRenderingRule(renderingRule).encodeInto(painter);
    m_renderer->render(painter, rect);
    painter.end();
    return recorder.recording();
}

QStringList MvPageFixture::texts(const MvPaintRecording &recording)
{
    QStringList texts;
    for (const MvPaintRecording::Item &text : recording.items(MvPaintRecording::Item::Text))
        texts.append(text.text);
    return texts;
}
