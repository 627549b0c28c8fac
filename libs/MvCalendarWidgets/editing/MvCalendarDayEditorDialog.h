// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvFoto/MvFoto.h"
#include "MvModelBase/MvProjectIdentifier.h"

#include <QDate>
#include <QDialog>
#include <QPointer>

class MvCalendarEventDateEdit;
class MvEventRepetitionEdit;
class MvFotoField;
class MvLineEdit;
class MvUndoCommand;
class QBoxLayout;
class QGraphicsObject;
class QGroupBox;
class QLabel;
class QPushButton;

/// Creates, changes or deletes one personal entry of a session: its date, its name and a photo, if wanted. In a series,
/// one entry follows another day by day without closing the dialog.
///
/// A tool window without parent that blocks nothing. It shows itself over the window it is opened from, and closes
/// when that window goes or another document's entries become the active ones. What it changes can be undone.
///
/// While it is open, it follows its entry: what changes elsewhere shows in the fields that the user has not touched.
/// When the entry is deleted elsewhere, the user is told, and the dialog closes; with something entered, it stays and
/// makes a new entry of that.
class MVCALENDARWIDGETS_EXPORT MvCalendarDayEditorDialog : public QDialog
{
    Q_OBJECT

public:
    static constexpr int defaultWidth = 500;
    static constexpr int defaultHeight = 400;

    /// The item, if any, is repainted after a change; it is not owned and may go before the dialog.
    explicit MvCalendarDayEditorDialog(QGraphicsObject *item, MvSession &session = MvSession::defaultSession());
    ~MvCalendarDayEditorDialog() override;

    /// A new dialog that deletes itself when it is closed, in its default size.
    static MvCalendarDayEditorDialog *createSelfDeleting(QGraphicsObject *item,
                                                         MvSession &session = MvSession::defaultSession());

    void openDayEditorSingle(const MvCalendarEvent &event);
    void openDayEditorSeries(const MvCalendarEvent &event);
    /// Fills the dialog with the entry, which may be new, and shows it. When another editor already shows that entry,
    /// that one comes to the front instead and this one closes.
    void openDayEditorDialog(const MvCalendarEvent &event, bool series);

    /// Puts into the fields what was typed elsewhere for the entry that was opened; its photo stays. The groups are
    /// those that it may name, new ones among them.
    void takeTyped(const MvCalendarEvent &typed, const MvEventGroupList &groups);

    void setDate(const QDate &date);
    // of the field for the photo, see MvFotoField
    void setFoto(const MvFoto &foto);
    void resetPhoto();
    bool hasPhoto() const;

    /// Does what the user has entered, as an undoable step, and gives the entry as it is then. It keeps its date when
    /// the typed one is none, and its photo when the new one cannot be taken, which the user is told.
    MvCalendarEvent applyEventChange();
    /// Takes ownership.
    void push(MvUndoCommand *command);

    /// Fixes the size; larger than given when the texts need that.
    void setSize(int width, int height);

    void animateRemovePhotoButton(bool in);

    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

public Q_SLOTS:
    void removePhoto();
    /// Asks for a photo's file.
    void chooseFoto();
    void acceptedClicked();
    void acceptedAndContinueClicked();
    void rejectedClicked();
    void deleteEntry();
    void onTextChanged();
    void repolishAndUpdateWidget();
    void animateInRemovePhotoButton();

private:
    void setupGUI();
    QGroupBox *createEntryGroup();
    QGroupBox *createButtonGroup();
    QPushButton *createButton(const QString &text, const QString &name, QBoxLayout *layout);
    void setupKeyboard();

    MvCalendarDayEditorDialog *otherEditor(const MvCalendarEvent &event) const;
    QWidget *sourceWindow() const;
    void moveToSource();
    void showName(const QString &name);
    void change(const MvCalendarEvent &changed, QGraphicsObject *item, const MvEventGroupList &groups = {});
    bool isTouched() const;
    void followEntry();
    void takeOver(const MvCalendarEvent &present);
    void loseEntry();

    MvSession &m_session;
    QPointer<QGraphicsObject> m_item;
    QPointer<QWidget> m_source;
    QLabel *m_noticeLabel = nullptr;
    QLabel *m_dateLabel = nullptr;
    MvCalendarEventDateEdit *m_dateEdit = nullptr;
    QDate m_date;
    MvLineEdit *m_descriptionEdit = nullptr;
    MvEventRepetitionEdit *m_repetitionEdit = nullptr;
    MvFotoField *m_fotoField = nullptr;
    MvCalendarEvent m_openedEvent;
    MvCalendarEventList m_knownEvents; // the list in which it was last seen
    bool m_isOfList = false;           // it was there; a new one is not
    bool m_isPushing = false;          // a change comes from here
    QString m_shownName;               // as the field was filled
    QPushButton *m_deleteButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
    QPushButton *m_okAndContinueButton = nullptr;
    MvProjectIdentifier m_project; // whose entry is edited
};
