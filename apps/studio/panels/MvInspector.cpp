// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvInspector.h"

#include "panels/MvInspectorSection.h"
#include "panels/MvPageEdits.h"
#include "panels/MvScopeSwitch.h"
#include "panels/MvStudioPanels.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvGUIWidgets/MvIconRegistry.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualWidth = 360; // logical pixels; the page is what it is about

} // namespace

MvInspector::MvInspector(MvStudioPanels *panels, MvPageSelection *selection, QWidget *parent)
    : QWidget(parent)
    , m_panels(panels)
    , m_selection(selection)
    , m_title(new QLabel(this))
    , m_back(new QToolButton(this))
    , m_scope(new MvScopeSwitch(panels->edits(), this))
    , m_column(new QVBoxLayout(this))
{
    setObjectName(u"inspector"_s);
    setAccessibleName(tr("Eigenschaften"));
    m_title->setObjectName(u"inspectorTitle"_s);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_back->setObjectName(u"inspectorBack"_s);
    m_back->setIcon(MvIconRegistry::instance().icon(u"ico_studio_page_previous"_s));
    m_back->setText(tr("Kalender"));
    m_back->setToolTip(tr("Zurück zum ganzen Kalender"));
    m_back->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_back->setAutoRaise(true);
    m_back->setFocusPolicy(Qt::StrongFocus);
    connect(m_back, &QToolButton::clicked, selection, &MvPageSelection::selectNothing);

    auto *head = new QHBoxLayout;
    const int margin = fontMetrics().height() / 2;
    head->setContentsMargins(margin, margin / 2, margin, margin / 2);
    head->addWidget(m_back);
    head->addWidget(m_title, 1);
    auto *scopeRow = new QHBoxLayout;
    scopeRow->setContentsMargins(margin, 0, margin, margin / 2);
    scopeRow->addWidget(m_scope);
    m_column->setContentsMargins({});
    m_column->setSpacing(0);
    m_column->addLayout(head);
    m_column->addLayout(scopeRow);
    for (const MvStudioPanel &panel : panels->selectionPanels() + panels->panels()) {
        auto *section = new MvInspectorSection(panel, this);
        m_column->addWidget(section);
        m_rows.append({section, panel.about, panel.hasScope});
        connect(section, &MvInspectorSection::pressed, this, [this, name = panel.objectName] { show(name); });
    }
    for (const auto kind : {MvPageSelection::Kind::Calendar, MvPageSelection::Kind::Foto, MvPageSelection::Kind::Text,
                            MvPageSelection::Kind::Day, MvPageSelection::Kind::Calendarium}) {
        const auto first =
            std::find_if(m_rows.begin(), m_rows.end(), [kind](const Row &row) { return row.about.contains(kind); });
        if (first != m_rows.end())
            m_open.insert(int(kind), first->section->name());
    }
    connect(selection, &MvPageSelection::changed, this, &MvInspector::followSelection);
    followSelection();
}

MvInspector::~MvInspector() = default;

QSize MvInspector::sizeHint() const
{
    return {qMax(usualWidth, minimumSizeHint().width()), QWidget::sizeHint().height()};
}

/// As wide as the widest panel needs, whichever is open: the page beside it keeps its place.
void MvInspector::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    int width = m_scope->minimumSizeHint().width() + fontMetrics().height();
    for (const Row &row : m_rows)
        width = qMax(width, row.section->narrowest());
    setMinimumWidth(width);
}

bool MvInspector::open(const QString &panel)
{
    for (const Row &row : m_rows) {
        if (row.section->name() != panel)
            continue;
        if (!row.about.contains(m_selection->kind()) && row.about.contains(MvPageSelection::Kind::Calendar))
            m_selection->selectNothing();
        if (!row.about.contains(m_selection->kind()))
            return false;
        show(panel);
        return true;
    }
    return false;
}

void MvInspector::show(const QString &panel)
{
    m_open[int(m_selection->kind())] = panel;
    followSelection();
}

void MvInspector::followSelection()
{
    const QString open = openPanel();
    m_title->setText(title());
    m_back->setVisible(m_selection->kind() != MvPageSelection::Kind::Calendar);
    for (const Row &row : m_rows) {
        const bool isShown = row.about.contains(m_selection->kind());
        const bool isOpen = isShown && row.section->name() == open;
        if (!isOpen)
            row.section->setOpen(false); // first, or both would stand there for a moment
        if (!isShown)
            row.section->hide();
    }
    for (const Row &row : m_rows) {
        if (!row.about.contains(m_selection->kind()))
            continue;
        const bool isOpen = row.section->name() == open;
        m_column->setStretchFactor(row.section, isOpen ? 1 : 0);
        row.section->setOpen(isOpen);
        row.section->show();
        if (isOpen)
            m_scope->setVisible(row.hasScope);
    }
}

QString MvInspector::title() const
{
    if (const qsizetype count = m_selection->elements().size(); count > 1)
        return tr("%n Rahmen", nullptr, int(count));
    switch (m_selection->kind()) {
    case MvPageSelection::Kind::Foto:
        return tr("Foto");
    case MvPageSelection::Kind::Text:
        return tr("Text");
    case MvPageSelection::Kind::Day:
        return MvApplicationLocale::instance().locale().toString(m_selection->date(), u"d. MMMM yyyy"_s);
    case MvPageSelection::Kind::Calendarium:
        return tr("Kalender als Rahmen");
    case MvPageSelection::Kind::Calendar:
        break;
    }
    return tr("Ganzer Kalender");
}
