// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPageFlow.h"

#include "MvProject/MvProject.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

using namespace Qt::StringLiterals;

namespace {

/// A page like the others, with the template that the theme has for its kind.
MvCalendarPage newPage(const MvCalendarDocument &document, MvPageKind kind)
{
    MvCalendarPage page(document.appearance(), {QDate(), document.holidayConfig()});
    page.setKind(kind);
    const MvCalendarTheme theme = MvThemeRegistry::instance().findTheme(document.themeId());
    if (theme.isValid())
        return MvThemeApplication::applied(page, theme, document.format());
    const QList<MvPageTemplate> known = MvThemeApplication::pageTemplates(document.themeId(), kind);
    if (!known.isEmpty())
        page.setTemplate(known.constFirst(), document.format());
    return page;
}

} // namespace

MvPageFlow::MvPageFlow(MvProject *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{}

void MvPageFlow::add(MvPageKind kind, int before)
{
    MvCalendarDocument document = m_project->document();
    const int page = document.insertPage(before, newPage(document, kind));
    m_project->change(document, kind == MvPageKind::Cover  ? tr("Titelblatt einfügen")
                                : kind == MvPageKind::Back ? tr("Rückseite einfügen")
                                                           : tr("Seite einfügen"));
    Q_EMIT pageRequested(page);
}

void MvPageFlow::duplicate(int page)
{
    MvCalendarDocument document = m_project->document();
    const int copy = document.duplicatePage(page);
    if (copy < 0)
        return;
    m_project->change(document, tr("Seite verdoppeln"));
    Q_EMIT pageRequested(copy);
}

void MvPageFlow::remove(int page)
{
    MvCalendarDocument document = m_project->document();
    if (!document.removePage(page)) {
        Q_EMIT message(tr("Seiten von Monaten gehören zum Zeitraum; unter Gestaltung > Papier und Zeitraum lässt er "
                          "sich ändern."));
        return;
    }
    m_project->change(document, tr("Seite entfernen"));
    Q_EMIT pageRequested(qMin(page, int(document.pages().size()) - 1));
}

void MvPageFlow::move(int from, int to)
{
    MvCalendarDocument document = m_project->document();
    if (!document.movePage(from, to)) {
        Q_EMIT message(tr("Dorthin lässt sich diese Seite nicht schieben: Titelblätter stehen vorn, Rückseiten hinten, "
                          "und Monate folgen aufeinander."));
        return;
    }
    m_project->change(document, tr("Seite verschieben"));
    Q_EMIT pageRequested(to);
}
