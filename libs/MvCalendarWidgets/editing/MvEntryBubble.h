// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"
#include "MvGUIWidgets/MvBubble.h"

#include "MvModelBase/MvProjectIdentifier.h"

#include <QDate>
#include <QPointer>

class MvDateEdit;
class MvEventRepetitionEdit;
class MvFotoField;
class MvLineEdit;
class QGraphicsObject;
class QLabel;
class QLayout;
class QListWidget;
class QPushButton;
struct MvEntryChange;

/// The entries of a day, at the day: a text and what goes with it, for a new entry or one that is there. Enter saves,
/// Escape leaves, a click elsewhere saves, too, and "Mehr …" goes on in the day editor with what was typed.
///
/// Of an entry that repeats by a rule it shows the date of this time; another date asks whether all times are meant.
/// Whatever it does is one step that can be undone.
class MVCALENDARWIDGETS_EXPORT MvEntryBubble : public MvBubble
{
    Q_OBJECT

public:
    /// The item, if any, is the one that the day editor comes from. Nothing is owned.
    MvEntryBubble(MvSession &session, QGraphicsObject *item, QWidget *widget);
    ~MvEntryBubble() override;

    /// Shows it beside the rectangle of the screen: with the chosen one of the day's entries, and a new one when that
    /// is invalid.
    void openFor(const QDate &date, const MvCalendarEventList &entries, const MvCalendarEvent &chosen,
                 const QRect &target);
    QDate date() const { return m_date; }

public Q_SLOTS:
    /// Saves what was typed, if anything, and closes; stays where it cannot be saved or something is asked.
    void accept();
    /// Asks which times, where there are several.
    void deleteEntry();
    void openEditor();

Q_SIGNALS:
    /// What was done, for a status bar.
    void message(const QString &text);

protected:
    bool mayLeave() override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *createContent();
    QLayout *createHead();
    QLayout *createDay();
    QLayout *createButtons();
    void createList();
    void fillList(const MvCalendarEventList &entries, const MvCalendarEvent &chosen);
    void chooseRow(int row);
    void showEntry(const MvCalendarEvent &event);
    void followEntries();
    bool isTouched() const;
    bool isDateTouched() const;
    bool refuse(const QString &text, QWidget *field);
    bool save();
    void updateRow(const MvCalendarEvent &saved);
    bool takeFoto(MvCalendarEvent &event);
    MvCalendarEvent typed(MvEventGroupList &groups) const;
    void push(const QString &name, const QList<MvEntryChange> &changes, const QString &told,
              const MvEventGroupList &groups = {});

    MvSession &m_session;
    QPointer<QGraphicsObject> m_item;
    QDate m_date;
    QDate m_shownDate; // of this time
    MvProjectIdentifier m_project;
    MvCalendarEventList m_entries;
    MvCalendarEvent m_event;
    bool m_isOfList = false;
    bool m_isPushing = false;
    QString m_shownName;

    QLabel *m_title = nullptr;
    QListWidget *m_list = nullptr;
    MvLineEdit *m_name = nullptr;
    MvDateEdit *m_dateEdit = nullptr;
    MvFotoField *m_foto = nullptr;
    MvEventRepetitionEdit *m_repetition = nullptr;
    QLabel *m_hint = nullptr;
    QPushButton *m_delete = nullptr;
};
