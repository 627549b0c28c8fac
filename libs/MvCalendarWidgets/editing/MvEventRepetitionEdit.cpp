// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventRepetitionEdit.h"

#include "MvGUIWidgets/MvDateEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int daysPerWeek = 7;

bool isLeapDay(const QDate &date)
{
    return date.month() == 2 && date.day() == 29;
}

MvRecurrenceRule withoutEnd(MvRecurrenceRule rule)
{
    rule.until = {};
    return rule;
}

} // namespace

MvEventRepetitionEdit::MvEventRepetitionEdit(QWidget *parent)
    : QWidget(parent)
    , m_repetition(new QComboBox(this))
    , m_group(new QComboBox(this))
    , m_leapDayLabel(new QLabel(tr("Ohne 29. Februar:"), this))
    , m_leapDay(new QComboBox(this))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_repetition->setObjectName(u"repetitionCombo"_s);
    m_repetition->addItems({tr("Einmal"), tr("Jedes Jahr"), tr("Alle 2 Jahre"), tr("Jede Woche"), tr("Alle 2 Wochen"),
                            tr("Jeden Monat am selben Tag"), tr("Jeden Monat am selben Wochentag"),
                            tr("Jeden Monat am letzten dieses Wochentags")});
    layout->addWidget(m_repetition, 0, 0);
    addDate(layout, 0, &m_untilBox, &m_until, tr("Zuletzt am"));
    m_group->setObjectName(u"groupCombo"_s);
    m_group->setEditable(true);
    layout->addWidget(m_group, 1, 0);
    addDate(layout, 1, &m_endBox, &m_end, tr("Dauert bis"));
    m_endBox->setObjectName(u"endBox"_s);
    m_end->setObjectName(u"endEdit"_s);
    m_leapDay->setObjectName(u"leapDayCombo"_s);
    m_leapDay->addItems({tr("nur in Schaltjahren"), tr("am 28. Februar"), tr("am 1. März")});
    m_leapDayLabel->setBuddy(m_leapDay);
    layout->addWidget(m_leapDayLabel, 2, 0, Qt::AlignRight);
    layout->addWidget(m_leapDay, 2, 1, 1, 2);
    for (QComboBox *combo : {m_repetition, m_group}) { // the dialog is no wider for the longest choice
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(10);
    }
    nameUnseen(m_repetition, tr("Wiederholung"));
    nameUnseen(m_group, tr("Gruppe"));
    layout->setColumnStretch(0, 1);
    connect(m_repetition, &QComboBox::currentIndexChanged, this, &MvEventRepetitionEdit::showChoice);
}

/// For a screen reader, to which the name of a box with a list is what is chosen in it, unless it has a label.
void MvEventRepetitionEdit::nameUnseen(QComboBox *combo, const QString &name)
{
    auto *label = new QLabel(name, this);
    label->setBuddy(combo);
    label->hide();
}

void MvEventRepetitionEdit::addDate(QGridLayout *layout, int row, QCheckBox **box, MvDateEdit **edit,
                                    const QString &name)
{
    *box = new QCheckBox(name, this);
    *edit = new MvDateEdit(this);
    (*edit)->setDisplayFormat(u"dd.MM.yyyy"_s);
    (*edit)->setAccessibleName(name);
    (*edit)->setEnabled(false);
    connect(*box, &QCheckBox::toggled, *edit, &QWidget::setEnabled);
    layout->addWidget(*box, row, 1);
    layout->addWidget(*edit, row, 2);
}

QList<QWidget *> MvEventRepetitionEdit::focusWidgets() const
{
    return {m_repetition, m_untilBox, m_until, m_group, m_endBox, m_end, m_leapDay};
}

MvRecurrenceRule MvEventRepetitionEdit::ruleOf(Choice choice, const QDate &date)
{
    MvRecurrenceRule rule;
    switch (choice) {
    case EverySecondYear:
    case EverySecondWeek:
        rule.interval = 2;
        rule.frequency = choice == EverySecondYear ? MvRecurrenceRule::Yearly : MvRecurrenceRule::Weekly;
        break;
    case EveryWeek:
        rule.frequency = MvRecurrenceRule::Weekly;
        break;
    case EveryMonth:
        rule.frequency = MvRecurrenceRule::Monthly;
        break;
    case SameWeekday:
    case LastWeekday:
        rule.frequency = MvRecurrenceRule::Monthly;
        rule.weekDays = {{choice == LastWeekday ? -1 : (date.day() - 1) / daysPerWeek + 1, date.dayOfWeek()}};
        break;
    default:
        break;
    }
    return rule;
}

MvEventRepetitionEdit::Choice MvEventRepetitionEdit::choiceOf(const MvCalendarEvent &event)
{
    const MvRecurrenceRule rule = withoutEnd(event.repetition().rule);
    if (rule.isNone())
        return event.storedRecurrent() ? EveryYear : Once;
    const QDate date = event.dateTime().date();
    for (int choice = EverySecondYear; choice <= LastWeekday; ++choice) {
        if (rule == ruleOf(Choice(choice), date))
            return Choice(choice);
    }
    return AsItIs;
}

void MvEventRepetitionEdit::setEvent(const MvCalendarEvent &event, const MvEventGroupList &groups, bool isNew)
{
    m_event = event;
    m_groups = groups;
    fill(event, groups);
    if (isNew)
        m_leapDay->setCurrentIndex(int(MvEventRepetition::LeapDay::February28));
    m_shown = event;
    MvEventGroupList same = groups;
    applyTo(m_shown, same);
}

void MvEventRepetitionEdit::showTyped(const MvCalendarEvent &typed, const MvEventGroupList &groups)
{
    fill(typed, groups);
}

void MvEventRepetitionEdit::fill(const MvCalendarEvent &event, const MvEventGroupList &groups)
{
    const QDate date = event.dateTime().date();
    const Choice choice = choiceOf(event);
    m_repetition->removeItem(AsItIs);
    if (choice == AsItIs)
        m_repetition->addItem(withoutEnd(event.repetition().rule).describe());
    m_repetition->setCurrentIndex(choice);
    const QDate until = event.repetition().rule.until;
    m_untilBox->setChecked(until.isValid());
    m_until->showDate(until.isValid() ? until : QDate(date.year(), 12, 31));
    m_endBox->setChecked(event.endDate().isValid());
    m_end->showDate(event.endDate().isValid() ? event.endDate() : date);
    m_group->clear();
    m_group->addItem(QString());
    for (const MvEventGroup &group : groups)
        m_group->addItem(group.name);
    const MvEventGroup *own = event.groups().isEmpty() ? nullptr : groups.find(event.groups().constFirst());
    m_group->setCurrentText(own ? own->name : QString());
    m_group->lineEdit()->setPlaceholderText(tr("Gruppe"));
    m_leapDay->setCurrentIndex(int(event.repetition().leapDay));
    showChoice();
}

void MvEventRepetitionEdit::showChoice()
{
    const bool isRule = m_repetition->currentIndex() > EveryYear;
    m_untilBox->setVisible(isRule);
    m_until->setVisible(isRule);
    const bool hasLeapDay = isLeapDay(m_event.dateTime().date()) && m_repetition->currentIndex() != Once;
    m_leapDayLabel->setVisible(hasLeapDay);
    m_leapDay->setVisible(hasLeapDay);
}

void MvEventRepetitionEdit::applyTo(MvCalendarEvent &event, MvEventGroupList &groups) const
{
    const QDate date = event.dateTime().date();
    const Choice choice = Choice(m_repetition->currentIndex());
    MvEventRepetition repetition = event.repetition();
    if (choice != AsItIs) {
        repetition.rule = ruleOf(choice, date);
        event.setRecurrent(choice == EveryYear);
    }
    if (choice == Once)
        repetition = {};
    if (!repetition.rule.isNone()) {
        repetition.rule.until = m_untilBox->isChecked() ? m_until->date() : QDate();
        if (repetition.rule.until.isValid())
            repetition.rule.count = 0;
    }
    repetition.leapDay = isLeapDay(date) && choice != Once ? MvEventRepetition::LeapDay(m_leapDay->currentIndex())
                                                           : MvEventRepetition::LeapDay::LeapYearsOnly;
    event.setRepetition(repetition);
    event.setEndDate(m_endBox->isChecked() ? m_end->date() : QDate());
    QStringList ids = event.groups();
    if (!ids.isEmpty())
        ids.removeFirst();
    const QString id = groups.idOfName(m_group->currentText());
    if (!id.isEmpty())
        ids.prepend(id);
    event.setGroups(ids);
}

bool MvEventRepetitionEdit::isTouched() const
{
    MvCalendarEvent changed = m_event;
    MvEventGroupList groups = m_groups;
    applyTo(changed, groups);
    return !(changed == m_shown);
}
