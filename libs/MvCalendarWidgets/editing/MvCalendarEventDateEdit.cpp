// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventDateEdit.h"

#include "MvCalendar/MvCalendarEvent.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvTypedDate.h"
#include "MvGUIWidgets/MvDateEdit.h"

#include <QAccessible>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int linesOfHint = 2;

/// The day in this year or, a 29 February, in the last leap year before.
QDate dayIn(int year, const QDate &day)
{
    QDate date(year, day.month(), day.day());
    while (!date.isValid())
        date = QDate(--year, day.month(), day.day());
    return date;
}

/// "Sonntag, 24. Dezember 1950", or "24. Dezember" without a year.
QString inWords(const QDate &date)
{
    const QLocale locale = MvApplicationLocale::instance().locale();
    return date.year() == MvCalendarEvent::unknownYear ? locale.toString(date, u"d. MMMM"_s)
                                                       : locale.toString(date, QLocale::LongFormat);
}

} // namespace

MvCalendarEventDateEdit::MvCalendarEventDateEdit(QWidget *parent)
    : QWidget(parent)
    , m_edit(new MvDateEdit(this))
    , m_unknownBox(new QCheckBox(tr("Jahr unbekannt"), this))
    , m_hint(new QLabel(this))
{
    m_edit->setObjectName(u"dateEdit"_s);
    m_edit->setAccessibleName(tr("Datum"));
    connect(m_edit, &MvDateEdit::meaningChanged, this, &MvCalendarEventDateEdit::onMeaningChanged);
    m_unknownBox->setObjectName(u"yearUnknownBox"_s);
    m_unknownBox->setToolTip(tr("Der Eintrag hat nur Tag und Monat, etwa ein Geburtstag, dessen Jahr Sie nicht "
                                "kennen."));
    connect(m_unknownBox, &QCheckBox::clicked, this, &MvCalendarEventDateEdit::onYearSwitched);
    m_hint->setObjectName(u"dateHint"_s);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *row = new QHBoxLayout;
    row->addWidget(m_edit);
    row->addWidget(m_unknownBox);
    row->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(row);
    layout->addWidget(m_hint);
    setFocusProxy(m_edit);
    reserveRoom();
    showSections();
}

/// A month may be typed by name, and nothing below moves when a reason takes more room than a date.
void MvCalendarEventDateEdit::reserveRoom()
{
    m_edit->setMinimumWidth(m_edit->fontMetrics().horizontalAdvance(u"00. September 0000 ✕"_s));
    m_hint->setFixedHeight(linesOfHint * m_hint->fontMetrics().lineSpacing());
}

void MvCalendarEventDateEdit::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        reserveRoom();
}

QDate MvCalendarEventDateEdit::date() const
{
    return m_edit->date() == m_shown ? m_date : m_edit->date();
}

void MvCalendarEventDateEdit::showDate(const QDate &date)
{
    m_unknownBox->setChecked(date.year() == MvCalendarEvent::unknownYear);
    showSections();
    m_edit->showDate(date);
}

void MvCalendarEventDateEdit::setDate(const QDate &date)
{
    m_year = 0;
    showDate(date);
    m_date = date;
    m_shown = m_edit->date();
}

bool MvCalendarEventDateEdit::takeText()
{
    if (m_edit->takeText())
        return true;
    m_edit->setFocus();
    return false;
}

bool MvCalendarEventDateEdit::isTouched() const
{
    return m_edit->isEdited() || m_edit->date() != m_shown;
}

void MvCalendarEventDateEdit::showSections()
{
    const bool isUnknown = m_unknownBox->isChecked();
    m_edit->setDisplayFormat(isUnknown ? u"dd.MM."_s : u"dd.MM.yyyy"_s);
    m_edit->setCalendarPopup(!isUnknown); // the sheet of a month has a year
}

void MvCalendarEventDateEdit::onMeaningChanged()
{
    const bool isUnknown = m_edit->date().year() == MvCalendarEvent::unknownYear;
    if (m_unknownBox->isChecked() != isUnknown) {
        m_unknownBox->setChecked(isUnknown);
        showSections();
    }
    const bool isError = !m_edit->error().isEmpty();
    const QDate meaning = m_edit->meaning();
    m_hint->setText(isError ? m_edit->error() : meaning.isValid() ? inWords(meaning) : QString());
    QFont font = m_hint->font();
    font.setBold(isError);
    m_hint->setFont(font);
    const QString sections = isUnknown ? tr("Tag und Monat") : tr("Tag, Monat und Jahr");
    m_edit->setAccessibleDescription(isError ? m_edit->error() : sections);
    if (isError) {
        QAccessibleEvent alert(m_hint, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void MvCalendarEventDateEdit::onYearSwitched(bool isUnknown)
{
    const QDate day = m_edit->date();
    if (isUnknown)
        m_year = day.year();
    showSections();
    m_edit->showDate(
        dayIn(isUnknown ? MvCalendarEvent::unknownYear : (m_year > 0 ? m_year : QDate::currentDate().year()), day));
    if (!isUnknown) {
        m_edit->setFocus();
        m_edit->setSelectedSection(QDateTimeEdit::YearSection);
    }
}
