// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvColumnHeadersPanel.h"

#include "common/MvStudioMerge.h"
#include "panels/MvGroupEdits.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumColumnHeadersEditor.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvCalendariumWords.h"
#include "MvCalendar/MvSession.h"

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The first layout that is made for columns; an invalid one when there is none.
MvCalendariumLayoutSchema layoutWithColumns()
{
    const MvCalendariumLayoutSchemaList schemata = MvCalendariumLayoutSchemaRegistry::instance().schemata();
    const auto found = std::find_if(schemata.begin(), schemata.end(), [](const MvCalendariumLayoutSchema &schema) {
        return schema.calendariumType().traits().hasColumns && !schema.suggestedColumnHeaders().isEmpty();
    });
    return found != schemata.end() ? *found : MvCalendariumLayoutSchema();
}

const QString blank = u" "_s; // a column without a name, in the calendar

QStringList replaced(QStringList headers, const QString &from, const QString &to)
{
    std::replace(headers.begin(), headers.end(), from, to);
    return headers;
}

} // namespace

MvColumnHeadersPanel::MvColumnHeadersPanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_stack(new QStackedWidget(this))
    , m_editing(new QWidget(this))
    , m_emptyState(createEmptyState())
    , m_editor(new MvCalendariumColumnHeadersEditor(this))
    , m_fromGroups(new QPushButton(tr("Spalten aus den Gruppen"), this))
{
    setObjectName(u"columnHeadersPanel"_s);
    auto *column = new QVBoxLayout(m_editing);
    column->setContentsMargins({});
    column->addWidget(m_editor);
    m_fromGroups->setObjectName(u"columnsFromGroups"_s);
    column->addWidget(m_fromGroups, 0, Qt::AlignLeft);
    column->addStretch(1);
    m_stack->addWidget(m_editing);
    m_stack->addWidget(m_emptyState);
    addScrollingColumn()->addWidget(m_stack);
    connect(m_editor, &MvCalendariumColumnHeadersEditor::headersChanged, this, &MvColumnHeadersPanel::onHeadersChanged);
    connect(m_fromGroups, &QPushButton::clicked, this, [this] { MvGroupEdits(this->edits()).makeColumns(); });
    connect(&edits->session().entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvPagePanel::renew);
}

QWidget *MvColumnHeadersPanel::createEmptyState()
{
    auto *state = new QWidget(this);
    auto *text = new QLabel(tr("Dieses Layout hat keine Spalten mit Überschriften."), state);
    text->setObjectName(u"noColumns"_s);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(state);
    column->addStretch(1);
    column->addWidget(text);
    const MvCalendariumLayoutSchema layout = layoutWithColumns();
    if (layout.isValid()) {
        auto *choose = new QPushButton(tr("Layout „%1“ nehmen").arg(layout.name()), state);
        choose->setObjectName(u"chooseColumnsLayout"_s);
        choose->setToolTip(layout.description());
        connect(choose, &QPushButton::clicked, this, &MvColumnHeadersPanel::chooseLayoutWithColumns);
        column->addSpacing(fontMetrics().height() / 2);
        column->addWidget(choose, 0, Qt::AlignCenter);
    }
    column->addStretch(2);
    return state;
}

void MvColumnHeadersPanel::showPage()
{
    const MvCalendariumAppearance appearance = edits()->page().appearance();
    const bool hasColumns = appearance.type().traits().hasColumns;
    m_stack->setCurrentWidget(hasColumns ? m_editing : m_emptyState);
    const MvCalendariumWords words(edits()->page().contentConfig().language());
    QStringList headers = replaced(words.columnHeadings(appearance), blank, QString());
    if (headers.isEmpty())
        headers.append(QString()); // which the editor shows
    if (hasColumns && headers != m_editor->headers())
        m_editor->setHeaders(headers);
    const bool hasGroups = !MvGroupEdits(edits()).shownGroups().isEmpty();
    m_fromGroups->setEnabled(hasGroups);
    m_fromGroups->setToolTip(hasGroups ? tr("Eine Spalte für jede Gruppe, die der Kalender zeigt; ihre Einträge stehen "
                                            "dann darin")
                                       : tr("Der Kalender zeigt noch keine Gruppe von Einträgen."));
}

void MvColumnHeadersPanel::onHeadersChanged(const QList<QString> &headers)
{
    if (isShowing())
        return;
    const bool isNone = headers.size() == 1 && headers.constFirst().isEmpty();
    const QStringList columns = isNone ? QStringList() : replaced(headers, QString(), blank);
    const auto apply = [&columns](MvCalendarPage &page) {
        MvCalendariumAppearance appearance = page.appearance();
        appearance.setColumnHeaders(columns);
        page.setAppearance(appearance);
    };
    edits()->edit(apply, tr("Spaltenüberschriften ändern"), MvStudioMerge::ColumnHeaders);
}

void MvColumnHeadersPanel::chooseLayoutWithColumns()
{
    edits()->setLayout(layoutWithColumns().ID());
}
