// SPDX-License-Identifier: LGPL-2.1-or-later
#include "start/MvStartPage.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvProject/MvNewCalendar.h"
#include "common/MvStudioSettings.h"
#include "flows/MvNewCalendarFlow.h"
#include "panels/MvCalendarKindChooser.h"
#include "panels/MvThemeChooser.h"
#include "start/MvRecentCalendars.h"
#include "start/MvStartDropZone.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize themeSize(140, 105);
constexpr QSize kindSize(128, 90);
constexpr int widest = 980; // logical pixels: lines that are longer are hard to follow

QPushButton *createWay(const char *objectName, const QString &icon, const QString &text, const QString &tip,
                       QWidget *parent)
{
    auto *button = new QPushButton(MvIconRegistry::instance().icon(icon), text, parent);
    button->setObjectName(QLatin1StringView(objectName));
    button->setToolTip(tip);
    button->setStatusTip(tip);
    button->setAutoDefault(false);
    return button;
}

} // namespace

MvStartPage::MvStartPage(QWidget *parent)
    : QScrollArea(parent)
    , m_dropZone(new MvStartDropZone(this))
{
    setObjectName(u"startPage"_s);
    setAccessibleName(tr("Startseite"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    QWidget *ways = createWays(); // the keyboard goes through all in the order in which they are made
    m_kinds = new MvCalendarKindChooser(kindSize, this);
    m_recent = new MvRecentCalendars(this);
    m_themes = new MvThemeChooser(themeSize, this);
    m_atStart = new QCheckBox(tr("Diese Seite beim Start &zeigen"), this);
    m_atStart->setObjectName(u"startAtStart"_s);
    m_dropZone->setHint(tr("Daraus wird ein Kalender mit Titelblatt: Jedes Bild kommt in seinen Monat. Alles lässt "
                           "sich danach ändern."));

    auto *content = new QWidget(this);
    auto *column = new QVBoxLayout;
    const int space = fontMetrics().height();
    column->setSpacing(space / 2);
    column->addWidget(m_dropZone);
    column->addWidget(ways);
    column->addWidget(createHeading(tr("Einen Kalender Schritt für Schritt an&legen"), m_kinds));
    column->addWidget(m_kinds);
    m_recentHeading = createHeading(tr("Z&uletzt geöffnet"), m_recent);
    column->addWidget(m_recentHeading);
    column->addWidget(m_recent);
    column->addWidget(createHeading(tr("Ges&taltung, in der ein Kalender aus Fotos entsteht"), m_themes));
    column->addWidget(m_themes);
    column->addWidget(m_atStart, 0, Qt::AlignLeft);
    column->addStretch(1);
    auto *middle = new QWidget(content);
    middle->setLayout(column);
    middle->setMaximumWidth(widest);
    auto *row = new QHBoxLayout(content);
    row->setContentsMargins(space, space, space, space);
    row->addStretch(1);
    row->addWidget(middle, widest);
    row->addStretch(1);
    setWidget(content);

    connect(m_dropZone, &MvStartDropZone::dropped, this, &MvStartPage::fotosGiven);
    connect(m_dropZone, &MvStartDropZone::filesRequested, this, &MvStartPage::filesRequested);
    connect(m_dropZone, &MvStartDropZone::folderRequested, this, &MvStartPage::folderRequested);
    m_themes->setObjectName(u"startThemes"_s);
    m_kinds->setObjectName(u"startKinds"_s);
    for (MvPictureList *pictures : std::initializer_list<MvPictureList *>{m_themes, m_kinds}) {
        pictures->setFrameShape(QFrame::NoFrame);
        pictures->viewport()->setAutoFillBackground(false);
        pictures->setWholeHeight(true);
    }
    const auto describe = [this](const QListWidgetItem *item) {
        Q_EMIT kindRequested(MvCalendarKindChooser::kindOf(m_kinds->row(item)));
    };
    connect(m_kinds, &QListWidget::itemClicked, this, describe);
    connect(m_kinds, &QListWidget::itemActivated, this, describe);
    connect(m_themes, &QListWidget::currentRowChanged, this, [this] {
        MvNewCalendarFlow::setLastTheme(m_themes->currentId());
        Q_EMIT themeChosen(m_themes->currentId());
    });
    connect(m_themes, &QListWidget::itemActivated, this, &MvStartPage::emptyRequested);
    connect(m_recent, &MvRecentCalendars::chosen, this, &MvStartPage::recentRequested);
    connect(m_atStart, &QCheckBox::clicked, this, [](bool on) { MvStudioSettings::setWelcomeShown(on); });
}

MvStartPage::~MvStartPage() = default;

QWidget *MvStartPage::createHeading(const QString &text, QWidget *list)
{
    auto *heading = new QLabel(text, this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setBuddy(list);
    heading->setContentsMargins(0, fontMetrics().height() / 2, 0, 0);
    return heading;
}

QWidget *MvStartPage::createWays()
{
    auto *empty = createWay("startEmpty", u"ico_studio_document_new"_s, tr("&Ohne Fotos beginnen"),
                            tr("Einen Kalender anlegen, der noch keine Fotos hat"), this);
    auto *open = createWay("startOpen", u"ico_studio_document_open"_s, tr("&Kalender öffnen …"),
                           tr("Einen gespeicherten Kalender öffnen"), this);
    auto *contacts = createWay("startImport", u"ico_studio_import_contacts"_s, tr("Geburtstage &importieren …"),
                               tr("Geburtstage aus einem Adressbuch (vCard) übernehmen"), this);
    auto *close = createWay("startClose", u"ico_studio_page_next"_s, tr("W&eiter zum Kalender"),
                            tr("Zu dem Kalender gehen, der schon da ist"), this);
    connect(empty, &QPushButton::clicked, this, &MvStartPage::emptyRequested);
    connect(open, &QPushButton::clicked, this, &MvStartPage::openRequested);
    connect(contacts, &QPushButton::clicked, this, &MvStartPage::importRequested);
    connect(close, &QPushButton::clicked, this, &MvStartPage::closeRequested);
    auto *row = new QWidget(this);
    auto *ways = new MvFlowLayout(row);
    ways->setContentsMargins(0, fontMetrics().height() / 2, 0, 0);
    for (QPushButton *button : {empty, open, contacts, close})
        ways->addWidget(button);
    return row;
}

void MvStartPage::renew()
{
    m_recent->look();
    if (m_themes->count() > 0 && m_themes->currentRow() < 0) {
        MvNewCalendar sample;
        sample.hasCover = sample.hasBack = false;
        m_themes->setDocument(sample.make());
        m_themes->setCurrentId(MvNewCalendarFlow::lastTheme());
        if (m_themes->currentRow() < 0)
            m_themes->setCurrentRow(0);
    }
    const bool hasRecent = m_recent->count() > 0;
    m_recent->setVisible(hasRecent);
    m_recentHeading->setVisible(hasRecent);
    m_atStart->setChecked(MvStudioSettings::isWelcomeShown());
}
