// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryShiftDialog.h"

#include "MvCalendar/MvEntryMove.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvGUIWidgets/MvSpinBox.h"
#include "MvPaint/MvPrintableText.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype nameLetters = 40; // of the example

/// With its weekday, which is what a shift by days is about.
QString inWords(const MvCalendarEvent &event, const QDate &date)
{
    if (!event.hasYear())
        return MvCalendarEvent::dateText(date);
    return MvApplicationLocale::instance().locale().toString(date, u"ddd dd.MM.yyyy"_s);
}

} // namespace

MvEntryShiftDialog::MvEntryShiftDialog(const MvCalendarEventList &events, QWidget *parent)
    : QDialog(parent)
    , m_events(events)
    , m_years(createBox(u"shiftYears"_s, mostYears))
    , m_days(createBox(u"shiftDays"_s, mostDays))
    , m_example(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"shiftEntriesDialog"_s);
    setWindowTitle(tr("%n Einträge verschieben", nullptr, int(events.size())));
    auto *form = new QFormLayout;
    form->addRow(tr("&Jahre:"), m_years);
    form->addRow(tr("&Tage:"), m_days);
    auto *hint = new QLabel(tr("Vorwärts, mit einem Minus rückwärts. Was sich nach Wochentagen wiederholt, behält bei "
                               "Jahren seinen Wochentag; wo kein Jahr bekannt ist, zählen nur die Tage."),
                            this);
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    m_example->setObjectName(u"shiftExample"_s);
    m_example->setWordWrap(true);
    m_example->setTextFormat(Qt::PlainText);
    m_example->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto *buttons = new QDialogButtonBox(this);
    m_move = buttons->addButton(tr("Verschieben"), QDialogButtonBox::AcceptRole);
    m_move->setObjectName(u"shiftNowButton"_s);
    m_move->setDefault(true);
    buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_example);
    column->addWidget(hint);
    column->addStretch(1);
    column->addWidget(buttons);
    m_years->setFocus();
    m_years->selectAll();
    showExample();
}

MvEntryShiftDialog::~MvEntryShiftDialog() = default;

int MvEntryShiftDialog::years() const
{
    return m_years->value();
}

int MvEntryShiftDialog::days() const
{
    return m_days->value();
}

QSpinBox *MvEntryShiftDialog::createBox(const QString &objectName, int most)
{
    auto *box = new MvSpinBox(this);
    box->setObjectName(objectName);
    box->setRange(-most, most);
    box->setKeyboardTracking(true); // the example follows what is typed
    connect(box, &QSpinBox::valueChanged, this, &MvEntryShiftDialog::showExample);
    return box;
}

/// Of the first one that moves at all.
void MvEntryShiftDialog::showExample()
{
    const auto shifted = [this](const MvCalendarEvent &event) {
        return MvEntryMove::shifted(event, years(), days()).dateTime().date();
    };
    MvCalendarEvent example = m_events.value(0);
    for (const MvCalendarEvent &event : std::as_const(m_events)) {
        if (shifted(event) != event.dateTime().date()) {
            example = event;
            break;
        }
    }
    const QDate from = example.dateTime().date();
    const QDate to = shifted(example);
    m_move->setEnabled(from != to);
    m_example->setText(tr("„%1“: %2 → %3")
                           .arg(MvPrintableText::inShort(example.description(), nameLetters), inWords(example, from),
                                inWords(example, to)));
}
