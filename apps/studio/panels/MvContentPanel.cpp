// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvContentPanel.h"

#include "common/MvStudioMerge.h"
#include "panels/MvPageEdits.h"
#include "panels/MvPageSetupEditor.h"

#include "MvCalendar/MvCalendariumContentConfigEditor.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

MvContentPanel::MvContentPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_content(new MvCalendariumContentConfigEditor(this, false))
    , m_calendarWeeks(createFeatureBox(u"calendarWeeks"_s, tr("&Kalenderwochen"), FEATURE_CALENDAR_WEEKS))
    , m_publicHolidaysOnly(
          createFeatureBox(u"publicHolidaysOnly"_s, tr("Nur ges&etzliche Feiertage"), FEATURE_PUBLIC_HOLIDAYS_ONLY))
    , m_vacationNamesDaily(
          createFeatureBox(u"vacationNamesDaily"_s, tr("Fe&rien an jedem Tag nennen"), FEATURE_VACATION_NAMES_DAILY))
    , m_vacationHint(
          new QLabel(tr("Schulferien hat jede Region für sich: Sie erscheinen, sobald eine gewählt ist."), this))
    , m_setup(new MvPageSetupEditor(this))
{
    setObjectName(u"contentPanel"_s);
    constexpr int regionLetters = 22;
    m_content->setNameLength(regionLetters); // there is room here for long names
    QVBoxLayout *column = addScrollingColumn();
    column->addWidget(m_content);
    m_vacationHint->setObjectName(u"vacationHint"_s);
    m_vacationHint->setWordWrap(true);
    m_vacationHint->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(m_vacationHint);
    for (QCheckBox *box : {m_calendarWeeks, m_publicHolidaysOnly, m_vacationNamesDaily})
        column->addWidget(box);
    auto *groups = new QPushButton(tr("Gruppen und Alter …"), this);
    groups->setObjectName(u"groupsButton"_s);
    groups->setToolTip(tr("Welche Gruppen von Einträgen der Kalender zeigt, in welchen Farben und mit welchem Alter"));
    connect(groups, &QPushButton::clicked, this, &MvContentPanel::groupsRequested);
    column->addWidget(groups, 0, Qt::AlignLeft);

    auto *calendar = new QGroupBox(tr("Ganzer Kalender"), this);
    m_setup->setStartVisible(false); // stands above
    m_setup->removeAccessKeys();     // here they would take the menus' keys
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
    MvCalendariumHolidayConfig holidays = page.contentConfig().holidayConfig();
    if (!page.appearance().showHolidays())
        holidays.setFeature(FEATURE_HOLIDAYS, false); // no names, whatever the content asks for
    m_content->setContentConfig({edits()->document().range().start(), holidays});
    m_shown = m_content->contentConfig();
    m_shownHolidays = m_content->holidayState();
    showVacationHint(holidays);
    showCalendarWeeks(page);
    m_publicHolidaysOnly->setChecked(holidays.hasFeatures(FEATURE_PUBLIC_HOLIDAYS_ONLY));
    m_vacationNamesDaily->setChecked(holidays.hasFeatures(FEATURE_VACATION_NAMES_DAILY));
    const bool hasAny = m_shownHolidays != Qt::Unchecked;
    m_publicHolidaysOnly->setEnabled(hasAny);
    m_vacationNamesDaily->setEnabled(hasAny);
    m_setup->setRange(edits()->document().range());
    m_setup->setFormat(edits()->document().format());
}

void MvContentPanel::showVacationHint(const MvCalendariumHolidayConfig &holidays)
{
    const bool hasRegions = !MvCalendariumHolidayCache::instance().availableProvinces(holidays.language()).isEmpty();
    m_vacationHint->setVisible(hasRegions && holidays.province().isEmpty() &&
                               holidays.hasFeatures(FEATURE_SCHOOL_VACATIONS));
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
    const Qt::CheckState state = m_content->holidayState();
    const bool isSwitched = std::exchange(m_shownHolidays, state) != state;
    if (before == after && !isSwitched)
        return;
    const bool isOn = state == Qt::Checked;
    const auto apply = [&](MvCalendarPage &page) {
        MvCalendariumHolidayConfig holidays = page.holidayConfig();
        if (after.language() != before.language())
            holidays.setLanguage(after.language());
        if (after.language() != before.language() || after.province() != before.province())
            holidays.setProvince(after.province());
        if (after.hasFeatures(FEATURE_ENTRIES) != before.hasFeatures(FEATURE_ENTRIES))
            holidays.setFeature(FEATURE_ENTRIES, after.hasFeatures(FEATURE_ENTRIES));
        if (isSwitched)
            holidays.setFeature(
                MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_SCHOOL_VACATIONS), isOn);
        page.setHolidayConfig(holidays);
        if (isSwitched && isOn && !page.appearance().showHolidays()) {
            MvCalendariumAppearance appearance = page.appearance();
            appearance.setShowHolidays(true);
            page.setAppearance(appearance);
        }
    };
    edits()->edit(apply, tr("Feiertage und Einträge ändern"));
}

void MvContentPanel::onFeatureClicked(int feature, bool on)
{
    const auto apply = [&](MvCalendarPage &page) { page.setFeature(MvCalendariumFeaturesEnum(feature), on); };
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
