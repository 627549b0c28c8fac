// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvGroupEdits.h"

#include "MvCalendar/MvDayGrounds.h"

#include <QDialog>

class MvColorSelectionButton;
class MvEntryPatternEdit;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QToolButton;

/// The groups of the calendar's entries: which of them it shows, their names, colours, signs and order, and how entries
/// read with their ages, in a group and in the whole calendar.
///
/// It blocks nothing: the pages show each edit at once, each is a step that can be undone, and the dialog follows.
class MvGroupsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Not owned.
    explicit MvGroupsDialog(MvPageEdits *edits, QWidget *parent = nullptr);
    ~MvGroupsDialog() override;

    /// The one that is open for the window, or a new one; deletes itself when it is closed.
    static MvGroupsDialog *open(MvPageEdits *edits, QWidget *window);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createList();
    QWidget *createDetails();
    QWidget *createColorRow();
    QWidget *createWhole();
    QToolButton *createButton(const QString &objectName, const QString &text, const QString &tip);
    void connectParts();

    void renew();
    void showList();
    void showDetails();
    void showContrast(const QColor &color);
    QString example(const QString &group) const;

    QString currentId() const;
    MvEventGroup current() const;
    void addGroup();
    void takeName();
    void changeCurrent(const std::function<void(MvEventGroup &)> &edit, const QString &name);
    void askAndRemove();

    MvPageEdits *m_edits;
    MvGroupEdits m_groups;
    MvDayGrounds m_grounds;
    QListWidget *m_list = nullptr;
    QToolButton *m_remove = nullptr;
    QToolButton *m_up = nullptr;
    QToolButton *m_down = nullptr;
    QWidget *m_details = nullptr;
    QLineEdit *m_name = nullptr;
    QLabel *m_nameNotice = nullptr;
    QCheckBox *m_hasColor = nullptr;
    MvColorSelectionButton *m_color = nullptr;
    QLabel *m_contrast = nullptr;
    QPushButton *m_takeReadable = nullptr;
    QLineEdit *m_symbol = nullptr;
    MvEntryPatternEdit *m_pattern = nullptr;
    MvEntryPatternEdit *m_wholePattern = nullptr;
    QCheckBox *m_times = nullptr;
    bool m_isShowing = false;
};
