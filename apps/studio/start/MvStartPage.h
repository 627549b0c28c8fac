// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvCalendarKind.h"

#include <QScrollArea>

class MvCalendarKindChooser;
class MvRecentCalendars;
class MvStartDropZone;
class MvThemeChooser;
class QCheckBox;
class QLabel;
class QVBoxLayout;

/// Where a calendar begins: a place for photos, the calendars that were open last, and what the new one is to look
/// like. It stands in the window in place of the page and the panels.
class MvStartPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit MvStartPage(QWidget *parent = nullptr);
    ~MvStartPage() override;

    /// Looks which calendars there are, and which settings hold.
    void renew();

Q_SIGNALS:
    /// A new calendar out of these files and folders.
    void fotosGiven(const QStringList &paths);
    void filesRequested();
    void folderRequested();
    /// A new calendar without photos.
    void emptyRequested();
    /// A new calendar of that kind, to be described first.
    void kindRequested(MvCalendarKind kind);
    void openRequested();
    void importRequested();
    void recentRequested(const QString &path);
    /// What the next new calendar is to look like.
    void themeChosen(const QString &themeId);
    /// On to the calendar that is open already.
    void closeRequested();

private:
    QWidget *createHeading(const QString &text, QWidget *list);
    QWidget *createWays();

    MvStartDropZone *m_dropZone;
    MvRecentCalendars *m_recent = nullptr;
    MvCalendarKindChooser *m_kinds = nullptr;
    MvThemeChooser *m_themes = nullptr;
    QWidget *m_recentHeading = nullptr;
    QCheckBox *m_atStart = nullptr;
};
