// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvPagePanel.h"

#include "panels/MvPageEdits.h"

#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualLetters = 46; // a panel's width in letters of its font

} // namespace

MvPagePanel::MvPagePanel(MvPageEdits *edits, QWidget *parent)
    : QWidget(parent)
    , m_edits(edits)
    , m_layout(new QVBoxLayout(this))
{
    connect(edits, &MvPageEdits::pageRefreshed, this, &MvPagePanel::renew);
}

MvPagePanel::~MvPagePanel() = default;

QSize MvPagePanel::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * usualLetters;
    return {qMax(width, minimumSizeHint().width()), QWidget::sizeHint().height()};
}

QSize MvPagePanel::minimumSizeHint() const
{
    QSize size = QWidget::minimumSizeHint();
    const QMargins margins = m_layout->contentsMargins();
    for (const auto *area : findChildren<QScrollArea *>()) {
        const int content = area->widget() ? area->widget()->minimumSizeHint().width() : 0;
        size.setWidth(qMax(size.width(),
                           content + area->verticalScrollBar()->sizeHint().width() + margins.left() + margins.right()));
    }
    return size;
}

QVBoxLayout *MvPagePanel::addScrollingColumn()
{
    auto *area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setFocusPolicy(Qt::NoFocus);
    area->viewport()->setAutoFillBackground(false);
    auto *content = new QWidget(area);
    content->setAutoFillBackground(false);
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    area->setWidget(content);
    m_layout->addWidget(area, 1);
    return column;
}

void MvPagePanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void MvPagePanel::renew()
{
    m_isOutdated = true;
    if (isVisible())
        refresh();
}

void MvPagePanel::refresh()
{
    if (!m_isOutdated || m_isShowing)
        return;
    m_isOutdated = false;
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    showPage();
}
