#include "MvProject/MvCalendariumFit.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvModelBase/MvPaintRecorder.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <QDomDocument>
#include <QPainter>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double air = 0.86; // numbers side by side do not touch: what fits, fits into so much of the width
constexpr int mostSteps = 3; // an A4 page with the fonts of A7; below that they are as small as they may be

std::unique_ptr<MvCalendariumRenderer> makeRenderer(const MvCalendariumAppearance &appearance,
                                                    const MvCalendariumContentConfig &content,
                                                    const MvSpaceMagnitude &productSize)
{
    std::unique_ptr<MvCalendariumRenderer> made(MvCalendariumRendererFactory::instance().createRenderer(appearance));
    made->setCalendarInformation(content, content.dayRange());
    made->setProductSize(productSize);
    return made;
}

/// Paddings shrink with the fonts, or small texts would drown in them and titles, which reach into them, would meet
/// what stands below.
MvCalendariumAppearance withScaledPaddings(const MvCalendariumAppearance &appearance, double factor)
{
    QDomDocument dom;
    QDomElement schema = dom.createElement(u"calendararea"_s);
    appearance.layoutSchema().write(schema);
    for (QDomElement cell = schema.firstChildElement(u"cell"_s); !cell.isNull();
         cell = cell.nextSiblingElement(u"cell"_s)) {
        for (const QString &name : {u"paddingleft"_s, u"paddingtop"_s, u"paddingright"_s, u"paddingbottom"_s}) {
            if (cell.hasAttribute(name))
                MvXMLBuilder::addAttribute(cell, name, factor * MvXMLParser::doubleAttribute(cell, name));
        }
    }
    MvCalendariumAppearance scaled = appearance;
    scaled.setLayoutSchema(MvCalendariumLayoutSchema(schema));
    scaled.setShowHolidays(appearance.showHolidays());
    return scaled.optimizedSize() == appearance.optimizedSize() ? scaled : appearance; // fonts are to stay as they are
}

} // namespace

MvCalendariumFit::MvCalendariumFit(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content,
                                   const MvSpaceMagnitude &pageSize, const QSizeF &room)
    : m_appearance(appearance)
    , m_content(content)
    , m_productSize(pageSize)
{
    MvCalendariumHolidayConfig empty = content.holidayConfig();
    empty.setFeatures(FEATURE_NONE); // long names of holidays are no reason for smaller numbers
    empty.setFeature(FEATURE_CALENDAR_WEEKS, content.hasFeatures(FEATURE_CALENDAR_WEEKS));
    m_content.setHolidayConfig(empty);

    shortenWeekdays(room);
    const MvCalendariumAppearance asDesigned = m_appearance;
    for (int step = 0; step < mostSteps && m_productSize.toInt() > MAGNITUDE_A8 && !hasRoom(room); ++step) {
        m_productSize = MvSpaceMagnitude(m_productSize.toInt() / 2);
        m_appearance = withScaledPaddings(asDesigned, asDesigned.optimizedSize().lengthFactor(m_productSize));
    }
}

void MvCalendariumFit::shortenWeekdays(const QSizeF &room)
{
    const MvCalendarRenderingInformation information = m_appearance.renderingInformation();
    if (m_appearance.type() != CALENDAR_ONE_WEEK_PER_ROW || !information.hasAnyOf(calendar_render_days_of_week) ||
        information.hasAnyOf(calendar_render_days_of_week_short))
        return;
    if (makeRenderer(m_appearance, m_content, m_productSize)->minimumSizeHint().width() > room.width())
        m_appearance.setRenderingInformation(information | calendar_render_days_of_week_short);
}

/// Whether everything but the names of days finds its place, in a month of 31 days in six weeks and in the one with the
/// longest name.
bool MvCalendariumFit::hasRoom(const QSizeF &room) const
{
    MvCalendariumAppearance withoutHeaders = m_appearance;
    withoutHeaders.setColumnHeaders(QString());
    for (const QDate month : {QDate(2026, 8, 1), QDate(2026, 9, 1)}) {
        const auto renderer = makeRenderer(withoutHeaders, m_content.moveToDay(month), m_productSize);
        // lists are content with less than they ask for
        if (m_appearance.type() != CALENDAR_ONE_DAY_PER_ROW && renderer->minimumSizeHint().height() > room.height())
            return false;
        MvPaintRecorder recorder(nullptr);
        QPainter painter(&recorder);
        renderer->render(painter, {QPointF(), QSizeF(air * room.width(), room.height())});
        if (!renderer->unfittingTexts().isEmpty())
            return false;
    }
    return true;
}
