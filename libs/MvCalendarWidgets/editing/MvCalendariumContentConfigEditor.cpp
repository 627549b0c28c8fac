// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumContentConfigEditor.h"

#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvLogger.h"
#include "MvGUIWidgets/MvMouseWheelEventFilter.h"
#include "MvGUIWidgets/MvSpinBox.h"
#include "MvProductBase/MvAppearanceConfig.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpacerItem>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int widestBox = 220;
constexpr MvCalendariumFeaturesEnum holidayFeatures[] = {FEATURE_HOLIDAYS, FEATURE_HOLIDAY_COLORS,
                                                         FEATURE_SCHOOL_VACATIONS};

/// Shows a mixed state, but nobody switches to one.
class HolidayBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override { setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked); }
};

/// What the regions of a country are called.
QString captionOf(const MvLocale &language)
{
    const QString country = language.country();
    if (country.isEmpty() || country == u"DE" || country == u"AT")
        return MvCalendariumContentConfigEditor::tr("Bundesland:");
    return country == u"CH" ? MvCalendariumContentConfigEditor::tr("Kanton:")
                            : MvCalendariumContentConfigEditor::tr("Region:");
}

QString namesOf(const MvCalendariumFeatures &features)
{
    return features.encodeCSV().remove(u' ');
}

void logChange(const QString &name, const QString &from, const QString &to)
{
    if (from != to)
        MvLogger::logCalendarDesignDialog(u"changeFeature NAME:%1 FROM:%2 TO:%3"_s.arg(name, from, to));
}

} // namespace

MvCalendariumContentConfigEditor::MvCalendariumContentConfigEditor(QWidget *parent, bool withTopSpacer)
    : QWidget(parent)
    , m_wheelFilter(new MvMouseWheelEventFilter(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(createCheckBoxes());
    layout->addWidget(createDateBox(withTopSpacer));
    m_lastLogged = contentConfig();
    connect(this, &MvCalendariumContentConfigEditor::onChanged, this, &MvCalendariumContentConfigEditor::logChanges);
}

QWidget *MvCalendariumContentConfigEditor::createCheckBoxes()
{
    auto *row = new QWidget(this);
    auto *grid = new QGridLayout(row);
    grid->setContentsMargins(0, 5, 0, 8);
    grid->setSpacing(0);

    const QString holidays = tr("Feiertage");
    m_holidayBox = new HolidayBox(
        MvAppearanceConfig::vacationsAvailable() ? tr("%1 / %2", "BUTTON").arg(holidays, tr("Schulferien")) : holidays,
        row);
    m_holidayBox->setObjectName(u"holidayCheckBox"_s);
    m_entriesBox = new QCheckBox(tr("Eigene Einträge"), row);
    m_entriesBox->setObjectName(u"personalEntriesCheckBox"_s);
    grid->addWidget(m_holidayBox, 0, 0);
    grid->addItem(new QSpacerItem(40, 0, QSizePolicy::Fixed, QSizePolicy::Minimum), 0, 2);
    grid->addWidget(m_entriesBox, 0, 3, 1, 2);
    grid->setColumnStretch(4, 1);

    connect(m_holidayBox, &QCheckBox::stateChanged, this, &MvCalendariumContentConfigEditor::onStateChangedCheckBox);
    connect(m_entriesBox, &QCheckBox::stateChanged, this, &MvCalendariumContentConfigEditor::onChanged);
    return row;
}

QWidget *MvCalendariumContentConfigEditor::createDateBox(bool withTopSpacer)
{
    m_dateBox = new QWidget(this);
    m_dateBox->setObjectName(u"dateBox"_s);
    auto *grid = new QGridLayout(m_dateBox);
    QMargins margins = grid->contentsMargins();
    margins.setLeft(0); // in line with the check boxes
    margins.setRight(10);
    grid->setContentsMargins(margins);
    if (withTopSpacer)
        grid->addItem(new QSpacerItem(0, 30, QSizePolicy::Minimum, QSizePolicy::Fixed), 0, 0);

    createYearAndMonthBox();
    auto *date = new QHBoxLayout;
    date->setSpacing(5);
    date->addWidget(m_yearBox);
    date->addWidget(m_monthBox);
    date->addStretch();
    grid->addLayout(date, 1, 0, 1, 4);

    createLanguageAndProvinceBox();
    addCaptioned(grid, 2, tr("Land:"), m_languageBox);
    m_provinceLabel = addCaptioned(grid, 3, QString(), m_provinceBox);
    captionProvinces(m_languages.value(m_languageBox->currentIndex()));
    grid->setColumnStretch(3, 1);
    for (QWidget *box : {static_cast<QWidget *>(m_yearBox), static_cast<QWidget *>(m_monthBox),
                         static_cast<QWidget *>(m_languageBox), static_cast<QWidget *>(m_provinceBox)})
        box->installEventFilter(m_wheelFilter);
    return m_dateBox;
}

void MvCalendariumContentConfigEditor::createYearAndMonthBox()
{
    const QDate start = MvDateRange::createDefaultCalendarStart();
    m_yearBox = new MvSpinBox(m_dateBox);
    m_yearBox->setObjectName(u"yearBox"_s);
    m_yearBox->setAccessibleName(tr("Jahr, mit dem der Kalender beginnt"));
    m_yearBox->setRange(1800, 2605);
    m_yearBox->setSingleStep(1);
    m_yearBox->setValue(start.year());
    connect(m_yearBox, &QSpinBox::valueChanged, this, &MvCalendariumContentConfigEditor::onChanged,
            Qt::QueuedConnection);

    m_monthBox = new QComboBox(m_dateBox);
    m_monthBox->setObjectName(u"monthBox"_s);
    m_monthBox->setAccessibleName(tr("Monat, mit dem der Kalender beginnt"));
    m_monthBox->setAccessibleDescription(m_monthBox->accessibleName()); // some platforms tell a box's value as its name
    const MvCalendarWordsRegistry &words = MvCalendarWordsRegistry::instance();
    const MvLocale language(MvApplicationLocale::instance().locale().name()); // its default one unless told otherwise
    for (int month = 1; month <= 12; ++month)
        m_monthBox->addItem(words.monthNameLong(language, month));
    m_monthBox->setMaxVisibleItems(12);
    connect(m_monthBox, &QComboBox::currentIndexChanged, this, &MvCalendariumContentConfigEditor::onChanged);
}

void MvCalendariumContentConfigEditor::createLanguageAndProvinceBox()
{
    m_languages = availableLanguages();
    m_languageBox = new QComboBox(m_dateBox);
    m_languageBox->setObjectName(u"languageBox"_s);
    for (const MvLocale &language : std::as_const(m_languages))
        m_languageBox->addItem(language.visibleName());
    m_languageBox->setEnabled(m_languages.size() > 1);

    m_provinceBox = new QComboBox(m_dateBox);
    m_provinceBox->setObjectName(u"provinceBox"_s);
    m_provinceBox->setPlaceholderText(tr("nicht gewählt"));
    m_provinceBox->setEnabled(false);
    setUpWholeCountry();
    for (QComboBox *box : {m_languageBox, m_provinceBox}) {
        box->setMaximumWidth(widestBox);
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }
    connect(m_languageBox, &QComboBox::currentIndexChanged, this, &MvCalendariumContentConfigEditor::languageChanged);
    connect(m_languageBox, &QComboBox::currentIndexChanged, this, &MvCalendariumContentConfigEditor::onChanged);
    connect(m_provinceBox, &QComboBox::currentIndexChanged, this, &MvCalendariumContentConfigEditor::onChanged);
    languageChanged(m_languageBox->currentIndex());
}

void MvCalendariumContentConfigEditor::setUpWholeCountry()
{
    auto *action = new QAction(
        tr("Ganzes Land") + u'\t' + QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText), m_provinceBox);
    action->setObjectName(u"wholeCountry"_s);
    m_provinceBox->addAction(action);
    m_provinceBox->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_provinceBox->setStatusTip(tr("Die Region, deren Feiertage gelten; Entf wählt wieder das ganze Land"));
    m_provinceBox->setAccessibleDescription(m_provinceBox->statusTip());
    connect(action, &QAction::triggered, this, [this] { m_provinceBox->setCurrentIndex(0); });
    m_provinceBox->installEventFilter(this);
}

void MvCalendariumContentConfigEditor::captionProvinces(const MvLocale &language)
{
    if (m_provinceLabel) // not yet while the boxes are being made
        m_provinceLabel->setText(captionOf(language));
}

QLabel *MvCalendariumContentConfigEditor::addCaptioned(QGridLayout *grid, int row, const QString &caption,
                                                       QComboBox *box)
{
    auto *label = new QLabel(caption, m_dateBox);
    label->setProperty("cssstyle", u"MvCalendariumContentConfigEditor_ContorlCaptionLabel"_s);
    label->setBuddy(box);
    grid->addWidget(label, row, 0, 1, 2);
    grid->addWidget(box, row, 3);
    return label;
}

void MvCalendariumContentConfigEditor::setContentConfig(const MvCalendariumContentConfig &config)
{
    {
        const QSignalBlocker yearBlocker(m_yearBox);
        const QSignalBlocker monthBlocker(m_monthBox);
        setStartDate(config.date());
    }
    m_given = config;
    setHolidayConfig(config.holidayConfig());
}

MvCalendariumContentConfig MvCalendariumContentConfigEditor::contentConfig() const
{
    MvCalendariumContentConfig config = m_given;
    config.setDate(startDate());
    config.setHolidayConfig(holidayConfig());
    return config;
}

void MvCalendariumContentConfigEditor::setHolidayConfig(const MvCalendariumHolidayConfig &config)
{
    m_loggingEnabled = false;
    m_given.setHolidayConfig(config);
    {
        const QSignalBlocker blocker(this);
        const QSignalBlocker languageBlocker(m_languageBox);
        setLanguage(config.language());
        setProvince(config.language(), config.province());
        showHolidayState();
        setPersonalEntriesChecked(config.hasFeatures(FEATURE_ENTRIES));
    }
    noteAsLogged();
    m_loggingEnabled = true;
}

MvCalendariumHolidayConfig MvCalendariumContentConfigEditor::holidayConfig() const
{
    MvCalendariumHolidayConfig config = m_given.holidayConfig();
    const int index = m_languageBox->currentIndex();
    if (index >= 0 && index < m_languages.size())
        config.setLanguage(m_languages[index]);
    config.setProvince(m_provinceBox->currentData().toString());
    for (const MvCalendariumFeaturesEnum feature : holidayFeatures)
        config.setFeature(feature, holidayChecked());
    config.setFeature(FEATURE_ENTRIES, personalEntriesChecked());
    return config;
}

QDate MvCalendariumContentConfigEditor::startDate() const
{
    return {year(), month(), 1};
}

void MvCalendariumContentConfigEditor::setStartDate(const QDate &date)
{
    if (!date.isValid())
        return;
    setYear(date.year());
    setMonth(date.month());
}

int MvCalendariumContentConfigEditor::month() const
{
    return m_monthBox->currentIndex() + 1;
}

void MvCalendariumContentConfigEditor::setMonth(int month)
{
    if (month >= 1 && month <= m_monthBox->count())
        m_monthBox->setCurrentIndex(month - 1);
}

int MvCalendariumContentConfigEditor::year() const
{
    return m_yearBox->value();
}

void MvCalendariumContentConfigEditor::setYear(int year)
{
    m_yearBox->setValue(year);
}

QString MvCalendariumContentConfigEditor::province() const
{
    return m_provinceBox->currentIndex() > 0 ? m_provinceBox->currentText() : QString();
}

bool MvCalendariumContentConfigEditor::holidayChecked() const
{
    return holidayState() == Qt::PartiallyChecked ? m_given.holidayConfig().hasFeatures(FEATURE_HOLIDAYS)
                                                  : m_holidayBox->isChecked();
}

Qt::CheckState MvCalendariumContentConfigEditor::holidayState() const
{
    return m_holidayBox->checkState();
}

/// A page may have holidays without vacations: neither a tick nor an empty box would be true then.
void MvCalendariumContentConfigEditor::showHolidayState()
{
    int on = 0;
    int count = 0;
    for (const MvCalendariumFeaturesEnum feature : holidayFeatures) {
        if (feature == FEATURE_SCHOOL_VACATIONS && !MvAppearanceConfig::vacationsAvailable())
            continue;
        ++count;
        on += m_given.hasFeatures(feature) ? 1 : 0;
    }
    m_holidayBox->setCheckState(on == 0 ? Qt::Unchecked : on == count ? Qt::Checked : Qt::PartiallyChecked);
    m_holidayBox->setToolTip(m_holidayBox->checkState() == Qt::PartiallyChecked
                                 ? tr("Zu sehen ist nur ein Teil: Feiertage, ihre Farben oder die Schulferien. "
                                      "Aus- und wieder eingeschaltet zeigt die Seite alles.")
                                 : QString());
}

void MvCalendariumContentConfigEditor::setHolidayChecked(bool checked)
{
    m_holidayBox->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

bool MvCalendariumContentConfigEditor::personalEntriesChecked() const
{
    return m_entriesBox->isChecked();
}

void MvCalendariumContentConfigEditor::setPersonalEntriesChecked(bool checked)
{
    m_entriesBox->setChecked(checked);
}

void MvCalendariumContentConfigEditor::setCheckboxesChecked(bool holidays, bool personal)
{
    setHolidayChecked(holidays);
    setPersonalEntriesChecked(personal);
}

void MvCalendariumContentConfigEditor::setCheckboxesVisible(bool holidays, bool personal)
{
    m_holidayBox->setVisible(holidays);
    m_entriesBox->setVisible(personal);
}

void MvCalendariumContentConfigEditor::setDateConfigurationVisible(bool visible)
{
    m_dateBox->setVisible(visible);
}

void MvCalendariumContentConfigEditor::setNameLength(int letters)
{
    for (QComboBox *box : {m_languageBox, m_provinceBox}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(letters);
        box->setMaximumWidth(QWIDGETSIZE_MAX);
    }
}

void MvCalendariumContentConfigEditor::reset()
{
    setCheckboxesChecked(false, false);
}

QList<MvLocale> MvCalendariumContentConfigEditor::availableLanguages() const
{
    return MvCalendariumHolidayCache::instance().availableLanguages();
}

void MvCalendariumContentConfigEditor::setLanguage(const MvLocale &language)
{
    m_languageBox->setCurrentIndex(static_cast<int>(m_languages.indexOf(language)));
}

void MvCalendariumContentConfigEditor::setProvince(const MvLocale &language, const QString &province)
{
    const QSignalBlocker blocker(m_provinceBox); // filling the box emits at most one change, at the end
    const QString before = m_provinceBox->currentData().toString();
    const MvCalendariumHolidayCalculator &calculator = MvCalendariumHolidayCalculator::instance();
    captionProvinces(language);
    m_provinceBox->clear();
    const QStringList codes = MvCalendariumHolidayCache::instance().availableProvinces(language);
    if (!codes.isEmpty())
        m_provinceBox->addItem(tr("Ganzes Land"), QString());
    for (const QString &code : codes)
        m_provinceBox->addItem(calculator.provinceName(language, code), code);
    const QString code = province.isEmpty() ? QString() : calculator.findProvince(language, province);
    const bool isElsewhere = !province.isEmpty() && code.isEmpty();
    m_provinceBox->setCurrentIndex(isElsewhere ? -1 : m_provinceBox->findData(code));
    enableProvinceBox();
    if (m_provinceBox->currentData().toString() != before)
        Q_EMIT onChanged();
}

void MvCalendariumContentConfigEditor::languageChanged(int index)
{
    const QSignalBlocker blocker(this); // the box reports the new country itself
    setProvince(index >= 0 && index < m_languages.size() ? m_languages[index] : MvLocale(), province());
}

void MvCalendariumContentConfigEditor::onStateChangedCheckBox(int state)
{
    if (state != Qt::PartiallyChecked)
        m_holidayBox->setToolTip({});
    enableProvinceBox();
    Q_EMIT onChanged();
}

/// The delete key in the box of the regions leads back to the whole country, whatever else it does in the window.
bool MvCalendariumContentConfigEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_provinceBox || (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->modifiers() != Qt::NoModifier || (key->key() != Qt::Key_Delete && key->key() != Qt::Key_Backspace))
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        m_provinceBox->setCurrentIndex(0);
    event->accept();
    return true;
}

/// When there is no choice, or it would have no effect, the box is disabled and shows the present value.
void MvCalendariumContentConfigEditor::enableProvinceBox()
{
    constexpr int wholeCountryAndOne = 2;
    m_provinceBox->setEnabled(m_holidayBox->isChecked() && m_provinceBox->count() > wholeCountryAndOne);
}

void MvCalendariumContentConfigEditor::noteAsLogged()
{
    m_lastLogged = contentConfig();
}

void MvCalendariumContentConfigEditor::logChanges()
{
    if (!m_loggingEnabled)
        return;
    const MvCalendariumContentConfig before = m_lastLogged;
    const MvCalendariumContentConfig now = contentConfig();
    const MvCalendariumHolidayConfig from = before.holidayConfig();
    const MvCalendariumHolidayConfig to = now.holidayConfig();
    logChange(u"entries"_s, namesOf(from.features()), namesOf(to.features()));
    logChange(u"language"_s, from.language().name(), to.language().name());
    logChange(u"province"_s, from.province(), to.province());
    logChange(u"year"_s, QString::number(before.year()), QString::number(now.year()));
    logChange(u"month"_s, QString::number(before.month()), QString::number(now.month()));
    m_lastLogged = now;
}
