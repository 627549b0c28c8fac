// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvEventGroup.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QWidget>

class MvDateEdit;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;

/// How an entry repeats, how long it lasts and whom it is about: the common cases in words. A rule that is none of them
/// is shown as it is and stays unless another one is chosen; so do exceptions and dates of its own.
class MVCALENDARWIDGETS_EXPORT MvEventRepetitionEdit : public QWidget
{
    Q_OBJECT

public:
    explicit MvEventRepetitionEdit(QWidget *parent = nullptr);

    /// A new entry of 29 February begins with 28 February in other years.
    void setEvent(const MvCalendarEvent &event, const MvEventGroupList &groups, bool isNew);
    /// Shows another state of the entry as if the user had chosen it.
    void showTyped(const MvCalendarEvent &typed, const MvEventGroupList &groups);
    /// Puts what is chosen into an entry, whose date is known by now. A group that is typed in is added to the groups.
    void applyTo(MvCalendarEvent &event, MvEventGroupList &groups) const;
    bool isTouched() const;

    /// Of several groups of an entry, the first one can be chosen here; the others stay.
    QList<QWidget *> focusWidgets() const;

private:
    /// What can be chosen; of the date it means the day of the month, or the weekday and the how manieth it is.
    enum Choice {
        Once,
        EveryYear,
        EverySecondYear,
        EveryWeek,
        EverySecondWeek,
        EveryMonth,
        SameWeekday,
        LastWeekday,
        AsItIs
    };

    static MvRecurrenceRule ruleOf(Choice choice, const QDate &date);
    static Choice choiceOf(const MvCalendarEvent &event);
    void nameUnseen(QComboBox *combo, const QString &name);
    void addDate(QGridLayout *layout, int row, QCheckBox **box, MvDateEdit **edit, const QString &name);
    void fill(const MvCalendarEvent &event, const MvEventGroupList &groups);
    void showChoice();

    QComboBox *m_repetition;
    QCheckBox *m_untilBox = nullptr;
    MvDateEdit *m_until = nullptr;
    QCheckBox *m_endBox = nullptr;
    MvDateEdit *m_end = nullptr;
    QComboBox *m_group;
    QLabel *m_leapDayLabel;
    QComboBox *m_leapDay;
    MvCalendarEvent m_event;
    MvCalendarEvent m_shown; // as it would be when nothing is touched
    MvEventGroupList m_groups;
};
