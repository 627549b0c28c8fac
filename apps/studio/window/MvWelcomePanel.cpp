// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvWelcomePanel.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvPaint/MvPrintableText.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QPushButton *createWay(const QString &objectName, const QString &icon, const QString &text, const QString &tip,
                       QWidget *parent)
{
    auto *button = new QPushButton(MvIconRegistry::instance().icon(icon), text, parent);
    button->setObjectName(objectName);
    button->setToolTip(tip);
    button->setStatusTip(tip);
    button->setAutoDefault(false);
    return button;
}

} // namespace

MvWelcomePanel::MvWelcomePanel(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(u"welcomePanel"_s);
    setAccessibleName(tr("Erste Schritte"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);

    auto *title = new QLabel(tr("Ihr Kalender für das kommende Jahr ist schon da. So wird er Ihrer:"), this);
    title->setWordWrap(true);
    auto *layouts = createWay(u"welcomeLayout"_s, u"ico_studio_layout"_s, tr("Layout aus Bildern &wählen"),
                              tr("Alle Layouts als kleine Seiten sehen und eines wählen"), this);
    auto *contacts = createWay(u"welcomeImport"_s, u"ico_studio_import_contacts"_s, tr("Geburtstage &importieren"),
                               tr("Geburtstage aus einem Adressbuch (vCard) übernehmen"), this);
    auto *open = createWay(u"welcomeOpen"_s, u"ico_studio_document_open"_s, tr("Datei ö&ffnen"),
                           tr("Einen gespeicherten Kalender öffnen"), this);
    m_recent = createWay(u"welcomeRecent"_s, u"ico_studio_recent"_s, QString(), QString(), this);
    m_recent->hide();
    connect(m_recent, &QPushButton::clicked, this, [this] { Q_EMIT recentRequested(m_recentPath); });
    auto *close = new QToolButton(this);
    close->setObjectName(u"welcomeClose"_s);
    close->setAccessibleName(tr("Erste Schritte schließen"));
    close->setToolTip(tr("Schließen; wieder zu zeigen über Ansicht > Erste Schritte"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::StrongFocus);

    auto *ways = new MvFlowLayout;
    for (QPushButton *button : {m_recent, layouts, contacts, open})
        ways->addWidget(button);
    auto *column = new QVBoxLayout;
    column->addWidget(title);
    column->addLayout(ways);
    auto *row = new QHBoxLayout(this);
    row->addLayout(column, 1);
    row->addWidget(close, 0, Qt::AlignVCenter);

    connect(layouts, &QPushButton::clicked, this, &MvWelcomePanel::layoutRequested);
    connect(contacts, &QPushButton::clicked, this, &MvWelcomePanel::importRequested);
    connect(open, &QPushButton::clicked, this, &MvWelcomePanel::openRequested);
    connect(close, &QToolButton::clicked, this, &MvWelcomePanel::closeRequested);
}

void MvWelcomePanel::setRecentFile(const QString &path)
{
    constexpr int longestName = 30;
    m_recentPath = path;
    m_recent->setVisible(!path.isEmpty());
    QString name = MvPrintableText::inShort(QFileInfo(path).completeBaseName(), longestName);
    m_recent->setText(tr("„%1“ öffnen").arg(name.replace(u'&', u"&&"_s)));
    m_recent->setToolTip(QDir::toNativeSeparators(path));
    m_recent->setStatusTip(tr("Mit dem letzten Kalender weitermachen"));
}
