// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvScopeSwitch.h"

#include "panels/MvPageEdits.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QRadioButton>

using namespace Qt::StringLiterals;

MvScopeSwitch::MvScopeSwitch(MvPageEdits *edits, QWidget *parent)
    : QWidget(parent)
    , m_edits(edits)
    , m_allPages(createButton(u"scopeAllPages"_s, tr("Für alle Seiten"), tr("Änderungen gelten für alle Seiten")))
    , m_currentPage(createButton(u"scopeCurrentPage"_s, tr("Nur diese Seite"),
                                 tr("Änderungen gelten nur für die Seite, die gerade zu sehen ist")))
{
    setObjectName(u"scopeSwitch"_s);
    auto *group = new QButtonGroup(this);
    group->addButton(m_allPages);
    group->addButton(m_currentPage);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_allPages);
    row->addWidget(m_currentPage);
    row->addStretch(1);
    connect(m_allPages, &QRadioButton::clicked, this, [this] { m_edits->setScope(MvPageEdits::Scope::AllPages); });
    connect(m_currentPage, &QRadioButton::clicked, this,
            [this] { m_edits->setScope(MvPageEdits::Scope::CurrentPage); });
    connect(edits, &MvPageEdits::scopeChanged, this, &MvScopeSwitch::showScope);
    showScope();
}

QRadioButton *MvScopeSwitch::createButton(const QString &objectName, const QString &text, const QString &help)
{
    auto *button = new QRadioButton(this);
    button->setObjectName(objectName);
    button->setText(text);
    button->setToolTip(help);
    button->setAccessibleName(text);
    button->setAccessibleDescription(help);
    return button;
}

void MvScopeSwitch::showScope()
{
    const bool isForAll = m_edits->scope() == MvPageEdits::Scope::AllPages;
    (isForAll ? m_allPages : m_currentPage)->setChecked(true);
}
