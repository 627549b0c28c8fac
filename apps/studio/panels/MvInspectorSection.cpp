// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvInspectorSection.h"

#include "panels/MvStudioPanel.h"

#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvInspectorSection::MvInspectorSection(const MvStudioPanel &panel, QWidget *parent)
    : QWidget(parent)
    , m_panel(panel.widget)
    , m_header(new QToolButton(this))
{
    m_header->setObjectName(panel.objectName + u"Header"_s);
    m_header->setProperty("cssstyle", u"sectionHeader"_s);
    m_header->setText(panel.title);
    m_header->setAccessibleName(panel.title);
    m_header->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_header->setAutoRaise(true);
    m_header->setCheckable(true);
    m_header->setFocusPolicy(Qt::StrongFocus);
    m_header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_header, &QToolButton::clicked, this, &MvInspectorSection::pressed);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_panel, 1);
    setOpen(false);
}

QString MvInspectorSection::name() const
{
    return m_panel->objectName();
}

bool MvInspectorSection::isOpen() const
{
    return m_header->isChecked();
}

void MvInspectorSection::setOpen(bool open)
{
    m_header->setChecked(open);
    m_header->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_panel->setVisible(open);
}

int MvInspectorSection::narrowest() const
{
    return qMax(m_panel->minimumSizeHint().width(), m_header->minimumSizeHint().width());
}
