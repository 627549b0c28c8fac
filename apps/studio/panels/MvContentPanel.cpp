#include "panels/MvContentPanel.h"

#include "common/MvStudioMerge.h"
#include "panels/MvPageEdits.h"
#include "panels/MvPageSetupEditor.h"

#include "MvCalendar/MvCalendariumContentConfigEditor.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvContentPanel::MvContentPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_content(new MvCalendariumContentConfigEditor(this, false))
    , m_calendarWeeks(createFeatureBox(u"calendarWeeks"_s, tr("&Kalenderwochen"), FEATURE_CALENDAR_WEEKS))
    , m_publicHolidaysOnly(
          createFeatureBox(u"publicHolidaysOnly"_s, tr("Nur &gesetzliche Feiertage"), FEATURE_PUBLIC_HOLIDAYS_ONLY))
    , m_vacationNamesDaily(
          createFeatureBox(u"vacationNamesDaily"_s, tr("Fe&rien an jedem Tag nennen"), FEATURE_VACATION_NAMES_DAILY))
    , m_setup(new MvPageSetupEditor(this))
{
    setObjectName(u"contentPanel"_s);
    addScopeSwitch();
    QVBoxLayout *column = addScrollingColumn();
    column->addWidget(m_content);
    for (QCheckBox *box : {m_calendarWeeks, m_publicHolidaysOnly, m_vacationNamesDaily})
        column->addWidget(box);

    auto *calendar = new QGroupBox(tr("Ganzer Kalender"), this);
    m_setup->setStartVisible(false); // stands above
    for (QLabel *label : m_setup->findChildren<QLabel *>())
        label->setText(label->text().remove(u'&')); // here they would take the menus' keys
    (new QVBoxLayout(calendar))->addWidget(m_setup);
    column->addSpacing(fontMetrics().height() / 2);
    column->addWidget(calendar);
    column->addStretch(1);

    connect(m_content, &MvCalendariumContentConfigEditor::onChanged, this, &MvContentPanel::onContentChanged);
    connect(m_setup, &MvPageSetupEditor::changed, this, &MvContentPanel::onSetupChanged);
}

QCheckBox *MvContentPanel::createFeatureBox(const QString &objectName, const QString &text, int feature)
{
    auto *box = new QCheckBox(text, this);
    box->setObjectName(objectName);
    connect(box, &QCheckBox::clicked, this, [this, feature](bool on) { onFeatureClicked(feature, on); });
    return box;
}

void MvContentPanel::showPage()
{
    const MvCalendarPage page = edits()->page();
    const MvCalendariumHolidayConfig holidays = page.contentConfig().holidayConfig();
    m_content->setContentConfig({edits()->document().range().start(), holidays});
    m_shown = m_content->contentConfig();
    showCalendarWeeks(page);
    m_publicHolidaysOnly->setChecked(holidays.hasFeatures(FEATURE_PUBLIC_HOLIDAYS_ONLY));
    m_vacationNamesDaily->setChecked(holidays.hasFeatures(FEATURE_VACATION_NAMES_DAILY));
    m_publicHolidaysOnly->setEnabled(m_content->holidayChecked());
    m_vacationNamesDaily->setEnabled(m_content->holidayChecked());
    m_setup->setRange(edits()->document().range());
    m_setup->setFormat(edits()->document().format());
}

/// A layout may leave nothing to choose.
void MvContentPanel::showCalendarWeeks(const MvCalendarPage &page)
{
    using CalendarWeeks = MvCalendarPage::CalendarWeeks;
    const CalendarWeeks weeks = page.calendarWeeks();
    const bool isAsked = page.contentConfig().holidayConfig().hasFeatures(FEATURE_CALENDAR_WEEKS);
    m_calendarWeeks->setEnabled(weeks == CalendarWeeks::AsAsked);
    m_calendarWeeks->setChecked(weeks == CalendarWeeks::Always || (weeks == CalendarWeeks::AsAsked && isAsked));
    m_calendarWeeks->setToolTip(weeks == CalendarWeeks::Always  ? tr("Dieses Layout zeigt die Kalenderwochen immer.")
                                : weeks == CalendarWeeks::Never ? tr("Dieses Layout zeigt keine Kalenderwochen.")
                                                                : QString());
}

void MvContentPanel::onContentChanged()
{
    if (isShowing())
        return;
    const MvCalendariumContentConfig before = m_shown;
    const MvCalendariumContentConfig after = m_content->contentConfig();
    m_shown = after;
    if (after.date() != before.date() && after.date().isValid()) {
        const auto shift = [&after](MvCalendarDocument &document) {
            const int months = document.range().monthCount();
            document.setRange({after.date(), after.date().addMonths(months).addDays(-1)});
        };
        edits()->editDocument(shift, tr("Beginn des Kalenders ändern"), MvStudioMerge::StartDate);
    }
    applyHolidays(before.holidayConfig(), after.holidayConfig());
}

/// Takes over only what the user changed: the editor knows less than the configuration may hold.
void MvContentPanel::applyHolidays(const MvCalendariumHolidayConfig &before, const MvCalendariumHolidayConfig &after)
{
    if (before == after)
        return;
    const auto apply = [&](MvCalendarPage &page) {
        MvCalendariumContentConfig content = page.contentConfig();
        MvCalendariumHolidayConfig holidays = content.holidayConfig();
        if (after.language() != before.language())
            holidays.setLanguage(after.language());
        if (after.language() != before.language() || after.province() != before.province())
            holidays.setProvince(after.province());
        for (const MvCalendariumFeaturesEnum feature :
             {FEATURE_HOLIDAYS, FEATURE_HOLIDAY_COLORS, FEATURE_ENTRIES, FEATURE_SCHOOL_VACATIONS}) {
            if (after.hasFeatures(feature) != before.hasFeatures(feature))
                holidays.setFeature(feature, after.hasFeatures(feature));
        }
        content.setHolidayConfig(holidays);
        page.setContentConfig(content);
    };
    edits()->edit(apply, tr("Feiertage und Einträge ändern"));
}

void MvContentPanel::onFeatureClicked(int feature, bool on)
{
    const auto apply = [&](MvCalendarPage &page) {
        MvCalendariumContentConfig content = page.contentConfig();
        MvCalendariumHolidayConfig holidays = content.holidayConfig();
        holidays.setFeature(MvCalendariumFeaturesEnum(feature), on);
        content.setHolidayConfig(holidays);
        page.setContentConfig(content);
    };
    edits()->edit(apply, feature == FEATURE_CALENDAR_WEEKS ? tr("Kalenderwochen ein- oder ausblenden")
                                                           : tr("Feiertage und Einträge ändern"));
}

void MvContentPanel::onSetupChanged()
{
    if (isShowing())
        return;
    const MvCalendarDocument &document = edits()->document();
    if (m_setup->range().monthCount() != document.range().monthCount()) {
        const QDate start = document.range().start();
        const MvDateRange range(start, start.addMonths(m_setup->range().monthCount()).addDays(-1));
        edits()->editDocument([&range](MvCalendarDocument &edited) { edited.setRange(range); },
                              tr("Anzahl der Monate ändern"), MvStudioMerge::MonthCount);
    }
    const MvPageFormat format = m_setup->format();
    if (format.isValid() && format != document.format())
        edits()->editDocument([&format](MvCalendarDocument &edited) { edited.setFormat(format); },
                              tr("Seitenformat ändern"), MvStudioMerge::PageFormat);
}
