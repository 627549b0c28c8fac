// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPrintedPage.h"

#include "MvEntries.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCalendar/MvCalendariumWords.h"
#include "MvPaint/MvPaintRecorder.h"

#include <QDir>
#include <QPainter>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using MvEntries::entry;

namespace {

constexpr double floorOfType = 6.5 / 72.0 * 254.0; // 6.5 points on paper, in tenths of a millimetre

MvFoto sampleFoto()
{
    const QString path = QDir::temp().filePath(u"every-page-%1.png"_s.arg(QCoreApplication::applicationPid()));
    if (!QFileInfo::exists(path)) {
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        if (!image.save(path))
            qFatal("the photo of the entries cannot be written");
        qAddPostRoutine([] {
            QFile::remove(QDir::temp().filePath(u"every-page-%1.png"_s.arg(QCoreApplication::applicationPid())));
        });
    }
    return MvFoto(QFileInfo(path));
}

/// On weekdays, weekends, usual holidays, and at the ends of months.
MvCalendarEventList entriesOf(MvPageChoice::Entries kind)
{
    MvCalendarEventList list;
    for (int month = 1; month <= 12 && kind != MvPageChoice::None; ++month) {
        for (const int day : {1, 6, 14, 25, 28}) {
            const QDate date(1992, month, day);
            list << entry(u"Eva"_s, date);
            if (kind == MvPageChoice::Long && day != 28) {
                list << entry(u"Großtante Wilhelmine Süßmilch-Ölschläger"_s, date);
            } else if (kind == MvPageChoice::Long) {
                list << entry(u"Mitgliederversammlung der Donaudampfschifffahrtsgesellschaft"_s, date);
            } else if (kind == MvPageChoice::Many) {
                for (const QString &name :
                     {u"Jörg"_s, u"Oma Erika (80)"_s, u"Hochzeitstag Anna und Max"_s, u"Zahnarzt"_s})
                    list << entry(name, date);
            } else if (kind == MvPageChoice::Fotos && day == 14) {
                list << entry(u"Hochzeitstag Anna und Max"_s, date, sampleFoto());
            }
        }
    }
    return list;
}

void setEntries(MvPageChoice::Entries kind)
{
    static int current = -1; // setting them stores them, too
    if (current == kind || kind == MvPageChoice::None)
        return;
    current = kind;
    if (kind == MvPageChoice::Own)
        return;
    MvCalendarEventRegistry::instance().setEvents(entriesOf(kind));
}

MvPageFormat formatOf(const QString &paper)
{
    const QStringList words = paper.split(u' ');
    MvPageFormat format = MvPageFormat::fromName(words.constFirst());
    if (words.size() > 1)
        format.setOrientation(MvPageFormat::Orientation::Landscape);
    return format;
}

MvCalendariumAppearance appearanceOf(const MvPageChoice &choice, const QString &family)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(choice.layout));
    appearance.adoptLayoutSuggestions();
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(choice.colors));
    appearance.adaptGridToLayout();
    if (choice.hasGrid.has_value()) {
        MvBorderConfig grid = appearance.gridConfig();
        grid.setIsEnabled(*choice.hasGrid);
        appearance.setGridConfig(grid);
    }
    MvCalendariumFontSettings fonts = appearance.fontSettings();
    fonts.setFont(family);
    fonts.setFontSizePercentage(choice.font - 100);
    appearance.setFontSettings(fonts);
    return appearance;
}

} // namespace

MvPrintedPage::MvPrintedPage(const MvPageChoice &choice, const QString &family, double pixelsPerUnit)
    : m_choice(choice)
    , m_format(formatOf(choice.paper))
{
    setEntries(choice.entries);
    MvCalendariumHolidayConfig holidays(
        choice.language, choice.region,
        MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_SCHOOL_VACATIONS));
    holidays.setFeature(FEATURE_ENTRIES, choice.entries != MvPageChoice::None);
    holidays.setFeature(FEATURE_CALENDAR_WEEKS, choice.hasWeeks);
    m_page = MvCalendarPage(appearanceOf(choice, family), MvCalendariumContentConfig(choice.month, holidays));
    if (choice.place != u"none"_s) {
        const auto placement = MvFotoFrame::Placement(MvPageChoice::places().indexOf(choice.place) - 1);
        MvFotoFrame foto(choice.foto, placement);
        foto.setShare(choice.share);
        m_page.setFotoFrame(foto);
    }
    items = m_page
                .record(
                    m_format, range(),
                    [this](MvCalendariumRenderer &renderer) {
                        expect(renderer);
                        QObject::connect(&renderer, &MvCalendariumRenderer::rectForDateFound,
                                         [this](const QDate &date, const QRectF &rect) {
                                             days.append({date, rect});
                                         });
                    },
                    MvRenderingRule(MvRenderingRule::InteractiveScreen), pixelsPerUnit)
                .items();
    unfitting = m_page.unfittingTexts(m_format, range());
    measureFloors();
}

MvDateRange MvPrintedPage::range() const
{
    return MvDateRange(m_choice.month, m_choice.month.addMonths(12).addDays(-1));
}

QString MvPrintedPage::describe() const
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    MvRenderingRule(MvRenderingRule::Print).encodeInto(painter);
    m_page.paint(painter, m_format, range());
    painter.end();
    QString text = recorder.recording().describe();
    const auto place = [](const QRectF &rect) {
        return u"%1,%2 %3x%4"_s.arg(rect.x(), 0, 'f', 1)
            .arg(rect.y(), 0, 'f', 1)
            .arg(rect.width(), 0, 'f', 1)
            .arg(rect.height(), 0, 'f', 1);
    };
    for (const Day &day : days)
        text += u"day %1 %2\n"_s.arg(day.date.toString(Qt::ISODate), place(day.rect));
    for (const MvUnfittingText &report : unfitting)
        text += u"no room \"%1\" %2 %3\n"_s.arg(report.text, report.date.toString(Qt::ISODate), place(report.rect));
    return text;
}

QImage MvPrintedPage::picture(double pixelsPerUnit) const
{
    QImage image((m_format.trimSize() * pixelsPerUnit).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    m_page.paint(painter, m_format, range());
    return image;
}

// ---- what is to be seen

void MvPrintedPage::expect(const MvCalendariumRenderer &renderer)
{
    const MvCalendariumType type = m_page.appearance().type();
    const QDate first = renderer.startDate();
    const QDate end = first.addMonths(m_page.monthCount());
    // the names of the weekdays in front of all weeks: a calendar of numbers alone
    const bool hasNumbersOnly =
        type == CALENDAR_ONE_COLUMN_PER_WEEK && renderer.isConfigured(calendar_render_days_of_week_only_in_front);
    if (renderer.abilities().hasAnyOf(ABILITY_DISPLAY_HOLIDAYS) && !hasNumbersOnly) {
        for (QDate date = first; date < end; date = date.addDays(1))
            dayTexts.insert(date, renderer.describeHolidays(date));
    }
    showsDays = type != CALENDAR_MONTH_ONLY && type != CALENDAR_YEAR_ONLY && type != CALENDAR_HOLIDAYS;
    words = MvCalendariumWords(renderer.language()).columnHeadings(m_page.appearance());
    if (m_page.monthCount() > 1)
        words << QString::number(first.year());
    else if (type == CALENDAR_MONTH_ONLY || renderer.isConfigured(calendar_render_title))
        words << renderer.calendarMonth(first);
    else if (!m_page.appearance().layoutSchema().monthLayout().toString().isEmpty())
        words << renderer.monthLong(first.month());
    expectHeads(renderer);
}

void MvPrintedPage::expectHeads(const MvCalendariumRenderer &renderer)
{
    const auto letters = [](const QStringList &names, qsizetype from) {
        QStringList found;
        for (const QString &name : names)
            found << name.mid(from, 1);
        return found;
    };
    if (showsDays && renderer.isConfigured(calendar_render_days_of_week)) {
        const QStringList names = renderer.weekdayNames(false)
                                  << renderer.saturdayName(false) << renderer.sundayName(false);
        const QStringList shortNames = renderer.weekdayNames(true)
                                       << renderer.saturdayName(true) << renderer.sundayName(true);
        // some languages begin all days alike
        heads << QList<QStringList>{names, shortNames, letters(shortNames, 0), letters(shortNames, 1)};
    }
    if (showsDays && m_page.monthCount() > 1) {
        QList<QStringList> months(3);
        for (int month = 1; month <= 12; ++month) {
            months[0] << renderer.monthLong(month);
            months[1] << renderer.monthShort(month);
            months[2] << QString::number(month);
        }
        heads << months;
    }
}

/// The floor, or what the layout itself has on this paper, whatever the room there is.
void MvPrintedPage::measureFloors()
{
    const std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(m_page.appearance()));
    renderer->setCalendarInformation(m_page.contentConfig(), range());
    renderer->setProductSize(m_format.magnitude());
    textFloor = floorOfType;
    headFloor = floorOfType;
    for (const MvCalendarCellType &type : renderer->usedCellTypes()) {
        headFloor = std::min(headFloor, double(renderer->font(type).pixelSize()));
        textFloor = std::min(textFloor, double(renderer->fontHolidays(type).pixelSize()));
    }
    textFloor = std::min(textFloor, m_page.appearance().type() == CALENDAR_HOLIDAYS ? headFloor : textFloor);
}
