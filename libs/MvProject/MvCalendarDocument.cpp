#include "MvProject/MvCalendarDocument.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvModelBase/MvPaintRecorder.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/MvCalendariumHolidayConfigDefault.h"
#include "MvProject/MvPageSource.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;

MvPageFormat a4Landscape()
{
    MvPageFormat format = MvPageFormat::fromName(u"A4"_s);
    format.setOrientation(MvPageFormat::Orientation::Landscape);
    return format;
}

int monthsPerPage(const MvCalendariumType &type)
{
    return type == CALENDAR_YEAR || type == CALENDAR_YEAR_ONLY ? monthsPerYear : 1;
}

} // namespace

MvCalendarDocument::MvCalendarDocument()
    : m_holidayConfig(MvCalendariumHolidayConfigDefault::instance().defaultConfig())
    , m_range(MvDateRange::createDefaultCalendarDateRange())
    , m_format(a4Landscape())
{}

bool MvCalendarDocument::isValid() const
{
    return m_appearance.isValid() && m_range.isValid() && m_format.isValid();
}

QList<QDate> MvCalendarDocument::pages() const
{
    QList<QDate> pages;
    const int step = monthsPerPage(m_appearance.type());
    for (int month = 0; month < m_range.monthCount(); month += step)
        pages.append(m_range.monthAt(month));
    return pages;
}

void MvCalendarDocument::paint(QPainter &painter, int page) const
{
    const QDate month = pages().value(page);
    if (isValid() && month.isValid())
        paintPage(painter, month);
}

QList<MvUnfittingText> MvCalendarDocument::unfittingTexts(int page) const
{
    const QDate month = pages().value(page);
    if (!isValid() || !month.isValid())
        return {};
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    return paintPage(painter, month);
}

QList<MvUnfittingText> MvCalendarDocument::paintPage(QPainter &painter, const QDate &month) const
{
    paintBackground(painter);
    const auto calendarium = renderer(m_appearance, month);
    QRectF rect = m_format.contentRect();
    if (!calendarium->rendersMonthInformation())
        rect = paintMonthLine(painter, rect, month);
    calendarium->render(painter, rect);
    return calendarium->unfittingTexts();
}

std::unique_ptr<MvCalendariumRenderer> MvCalendarDocument::renderer(const MvCalendariumAppearance &appearance,
                                                                    const QDate &month) const
{
    std::unique_ptr<MvCalendariumRenderer> made(MvCalendariumRendererFactory::instance().createRenderer(appearance));
    // a year's page begins with its own first month, not with that of the whole calendar
    const bool isYearPage = appearance.type() == CALENDAR_YEAR;
    const MvDateRange range = isYearPage ? MvDateRange(month, month.addMonths(12).addDays(-1)) : m_range;
    made->setCalendarInformation(MvCalendariumContentConfig(month, m_holidayConfig), range);
    made->setProductSize(m_format.magnitude());
    made->setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    return made;
}

QRectF MvCalendarDocument::paintMonthLine(QPainter &painter, const QRectF &rect, const QDate &month) const
{
    MvCalendariumAppearance appearance = m_appearance;
    appearance.setLayoutSchemaByID(m_appearance.layoutSchema().monthLayout());
    if (!appearance.isValid())
        return rect;
    const auto line = renderer(appearance, month);
    const double height = std::min(rect.height() / 2.0, double(line->minimumSizeHint().height()));
    line->render(painter, {rect.left(), rect.top(), rect.width(), height});
    return rect.adjusted(0.0, height, 0.0, 0.0);
}

/// Margins and bleed continue the ground of empty cells, or a dark calendarium would have a white frame.
void MvCalendarDocument::paintBackground(QPainter &painter) const
{
    const QColor color = m_appearance.cellColor(MvCalendarCellColorKey(
        MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_EMPTY, MvParityLogicEnum::even));
    if (m_appearance.isOpaqueColor(color))
        painter.fillRect(m_format.mediaRect(), color);
}

MvPageSource MvCalendarDocument::pageSource() const
{
    MvPageSource source;
    source.format = m_format;
    source.pages = m_appearance.isValid() ? pages() : QList<QDate>();
    source.paint = [document = *this](QPainter &painter, int page) { document.paint(painter, page); };
    source.title = m_title;
    source.author = m_author;
    return source;
}
