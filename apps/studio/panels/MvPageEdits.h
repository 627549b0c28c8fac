// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QObject>

#include <functional>

class MvProject;
class MvSession;

/// What the panels edit: the current page, or all pages at once. Every edit is one undo step.
class MvPageEdits : public QObject
{
    Q_OBJECT

public:
    enum class Scope {
        AllPages,
        CurrentPage,
    };
    using PageEdit = std::function<void(MvCalendarPage &)>;
    using DocumentEdit = std::function<void(MvCalendarDocument &)>;

    /// The project is not owned.
    explicit MvPageEdits(MvProject *project, QObject *parent = nullptr);

    Scope scope() const { return m_scope; }
    void setScope(Scope scope);

    /// The project's.
    MvSession &session() const;
    const MvCalendarDocument &document() const;
    /// The current page as the project has it; an invalid one when there is none.
    MvCalendarPage page() const;
    int currentPage() const { return m_currentPage; }
    void setCurrentPage(int page);

    /// Edits the pages in scope; see MvProject::change() for the merge id.
    void edit(const PageEdit &edit, const QString &text, int mergeId = -1);
    /// Edits the current page alone, whatever the scope.
    void editCurrent(const PageEdit &edit, const QString &text, int mergeId = -1);
    /// Gives the pages in scope another layout, with the column headers and the grid that go with it. A layout of years
    /// for all pages divides the calendar anew.
    void setLayout(const MvCalendariumLayoutSchemaID &id);
    /// Edits the whole calendar, whatever the scope.
    void editDocument(const DocumentEdit &edit, const QString &text, int mergeId = -1);

Q_SIGNALS:
    void scopeChanged();
    /// Another page is the current one, or it has changed, be it by undo.
    void pageRefreshed();
    /// Another project was opened; before its page is shown.
    void documentReplaced();
    void documentSaved();

private:
    MvProject *m_project;
    Scope m_scope = Scope::AllPages;
    int m_currentPage = 0;
};
