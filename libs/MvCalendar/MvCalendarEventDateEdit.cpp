#include "MvCalendar/MvCalendarEventDateEdit.h"

#include "MvCalendar/MvCalendarEvent.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QDate earliestDate(100, 1, 1); // the first one that date edits know

/// The day in this year or, a 29 February, in the last leap year before.
QDate dayIn(int year, const QDate &day)
{
    QDate date(year, day.month(), day.day());
    while (!date.isValid())
        date = QDate(--year, day.month(), day.day());
    return date;
}

} // namespace

MvCalendarEventDateEdit::MvCalendarEventDateEdit(QWidget *parent)
    : QWidget(parent)
    , m_edit(new QDateTimeEdit(this))
    , m_unknownBox(new QCheckBox(tr("Jahr unbekannt"), this))
{
    m_edit->setObjectName(u"dateEdit"_s);
    m_edit->setAccessibleName(tr("Datum"));
    m_edit->setMinimumDate(earliestDate);
    m_unknownBox->setObjectName(u"yearUnknownBox"_s);
    m_unknownBox->setToolTip(tr("Der Eintrag hat nur Tag und Monat, etwa ein Geburtstag, dessen Jahr Sie nicht "
                                "kennen."));
    connect(m_unknownBox, &QCheckBox::clicked, this, &MvCalendarEventDateEdit::onYearSwitched);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_edit);
    row->addWidget(m_unknownBox);
    setFocusProxy(m_edit);
    showSections();
}

QDate MvCalendarEventDateEdit::date() const
{
    return m_edit->date();
}

void MvCalendarEventDateEdit::setDate(const QDate &date)
{
    m_year = 0;
    m_unknownBox->setChecked(date.year() == MvCalendarEvent::unknownYear);
    showSections();
    m_edit->setDate(date);
}

void MvCalendarEventDateEdit::showSections()
{
    const bool isUnknown = m_unknownBox->isChecked();
    m_edit->setDisplayFormat(isUnknown ? u"dd.MM."_s : u"dd.MM.yyyy"_s);
    m_edit->setCalendarPopup(!isUnknown); // the sheet of a month has a year
    m_edit->setAccessibleDescription(isUnknown ? tr("Tag und Monat") : tr("Tag, Monat und Jahr"));
}

void MvCalendarEventDateEdit::onYearSwitched(bool isUnknown)
{
    const QDate day = date();
    if (isUnknown)
        m_year = day.year();
    showSections();
    m_edit->setDate(
        dayIn(isUnknown ? MvCalendarEvent::unknownYear : (m_year > 0 ? m_year : QDate::currentDate().year()), day));
    if (!isUnknown) {
        m_edit->setFocus();
        m_edit->setSelectedSection(QDateTimeEdit::YearSection);
    }
}
