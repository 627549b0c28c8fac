// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvCalendarDraft.h"

#include <QDialog>
#include <QStringList>

class MvCalendarKindChooser;
class MvLayoutChooser;
class MvPageSetupEditor;
class MvRegionEditor;
class MvThemeChooser;
class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTimer;

/// Asks in one go what a new calendar is to be: its kind and its look from pictures, months, paper and binding, the
/// region, and which photos go into it, which may also be dropped on it.
class MvNewCalendarDialog : public QDialog
{
    Q_OBJECT

public:
    /// Begins with what the draft says.
    MvNewCalendarDialog(const MvCalendarDraft &draft, QWidget *parent);
    ~MvNewCalendarDialog() override;

    MvCalendarDraft draft() const;
    /// Files and folders, unread; none for a planner.
    QStringList fotoPaths() const;

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *createLooks();
    QWidget *createSettings();
    void addCalendar(QFormLayout *form);
    void addFotos(QFormLayout *form);
    void setKind(MvCalendarKind kind);
    void setFotoPaths(const QStringList &paths);
    void renewPictures();
    void updateTitle();

    MvCalendarDraft m_draft;
    MvCalendarKindChooser *m_kinds;
    QStackedWidget *m_looks;
    MvThemeChooser *m_themes;
    MvLayoutChooser *m_layouts;
    MvPageSetupEditor *m_setup;
    MvRegionEditor *m_region;
    QLineEdit *m_title;
    QCheckBox *m_cover;
    QCheckBox *m_back;
    QCheckBox *m_facing;
    QLabel *m_fotos;
    QWidget *m_fotoRow = nullptr;
    QWidget *m_extras = nullptr;
    QFormLayout *m_form = nullptr;
    QTimer *m_later;
    QStringList m_paths;
};
