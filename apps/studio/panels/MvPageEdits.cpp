// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvPageEdits.h"

#include "panels/MvLayoutChooser.h"

#include "MvProject/MvProject.h"

MvPageEdits::MvPageEdits(MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    connect(project, &MvProject::pageChanged, this, [this](int page) {
        if (page == m_currentPage)
            Q_EMIT pageRefreshed();
    });
    connect(project, &MvProject::pagesReset, this, &MvPageEdits::pageRefreshed);
    connect(project, &MvProject::saved, this, &MvPageEdits::documentSaved);
    connect(project, &MvProject::documentReplaced, this, [this] {
        m_currentPage = 0;
        Q_EMIT documentReplaced();
        Q_EMIT pageRefreshed();
    });
}

void MvPageEdits::setScope(Scope scope)
{
    if (m_scope == scope)
        return;
    m_scope = scope;
    Q_EMIT scopeChanged();
}

MvSession &MvPageEdits::session() const
{
    return m_project->session();
}

const MvCalendarDocument &MvPageEdits::document() const
{
    return m_project->document();
}

MvCalendarPage MvPageEdits::page() const
{
    return document().pages().value(m_currentPage);
}

void MvPageEdits::setCurrentPage(int page)
{
    if (m_currentPage == page)
        return;
    m_currentPage = page;
    Q_EMIT pageRefreshed();
}

void MvPageEdits::edit(const PageEdit &edit, const QString &text, int mergeId)
{
    if (m_scope == Scope::CurrentPage) {
        editCurrent(edit, text, mergeId);
        return;
    }
    const auto editAll = [&edit](MvCalendarDocument &document) {
        const QList<MvCalendarPage> pages = document.pages();
        for (int number = 0; number < pages.size(); ++number) {
            MvCalendarPage edited = pages.at(number);
            edit(edited);
            document.setPage(number, edited);
        }
    };
    editDocument(editAll, text, mergeId);
}

void MvPageEdits::editCurrent(const PageEdit &edit, const QString &text, int mergeId)
{
    MvCalendarPage edited = page();
    edit(edited);
    m_project->changePage(m_currentPage, edited, text, mergeId);
}

void MvPageEdits::setLayout(const MvCalendariumLayoutSchemaID &id)
{
    const QString text = tr("Layout ändern");
    const MvCalendarPage before = page();
    MvCalendarPage after = before;
    after.setAppearance(MvLayoutChooser::withLayout(before.appearance(), id));
    if (m_scope == Scope::AllPages && after.monthCount() != before.monthCount()) {
        editDocument([&after](MvCalendarDocument &document) { document.setAppearance(after.appearance()); }, text);
        return;
    }
    edit([&id](MvCalendarPage &page) { page.setAppearance(MvLayoutChooser::withLayout(page.appearance(), id)); }, text);
}

void MvPageEdits::editDocument(const DocumentEdit &edit, const QString &text, int mergeId)
{
    MvCalendarDocument edited = document();
    edit(edited);
    m_project->change(edited, text, mergeId);
}
