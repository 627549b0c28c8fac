// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvStudioPanel.h"

#include <QDate>
#include <QList>
#include <QObject>

class MvFrameEdits;
class MvPageEdits;
class MvProject;

/// The panels in which the user changes what the pages show and how they look. They follow undo and redo.
class MvStudioPanels : public QObject
{
    Q_OBJECT

public:
    /// The widgets are children of `parent`, which also owns this object, until the inspector takes them. The project
    /// is not owned and must outlive them, nor are selection and frames; without them there are the panels of the
    /// calendar alone.
    MvStudioPanels(MvProject *project, QWidget *parent, MvPageSelection *selection = nullptr,
                   MvFrameEdits *frames = nullptr);
    ~MvStudioPanels() override;

    /// Those of the calendar: theme, content, layout, colours, fonts, column headers, entries.
    QList<MvStudioPanel> panels() const { return m_panels; }
    /// Those of what is chosen on the page.
    QList<MvStudioPanel> selectionPanels() const { return m_selectionPanels; }

    /// What an edit applies to: every page, as at first, or the current one alone.
    MvPageEdits *edits() const { return m_edits; }

public Q_SLOTS:
    void setCurrentPage(int page);

Q_SIGNALS:
    /// Somebody wants to see a day on its page.
    void dayRequested(int page, const QDate &date);
    /// Somebody wants to name, colour or choose the groups of entries.
    void groupsRequested();
    void message(const QString &text);
    /// Somebody wants to choose a file for the chosen frame.
    void fileRequested();

private:
    MvPageEdits *m_edits;
    QList<MvStudioPanel> m_panels;
    QList<MvStudioPanel> m_selectionPanels;
};
