// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvStudioStatusBar.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QToolButton>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostMenuEntries = 30;

} // namespace

MvStudioStatusBar::MvStudioStatusBar(QWidget *parent)
    : QStatusBar(parent)
    , m_entriesNotice(new QToolButton(this))
    , m_unfitting(new QToolButton(this))
    , m_page(new QLabel(this))
    , m_zoom(new QComboBox(this))
{
    m_entriesNotice->setObjectName(u"entriesNoticeButton"_s);
    m_entriesNotice->setIcon(MvIconRegistry::instance().icon(u"ico_studio_warning"_s));
    m_entriesNotice->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_entriesNotice->setAutoRaise(true);
    m_entriesNotice->setFocusPolicy(Qt::TabFocus);
    m_entriesNotice->setToolTip(tr("Was geschehen ist, und was Sie tun können"));
    m_entriesNotice->hide();
    connect(m_entriesNotice, &QToolButton::clicked, this, &MvStudioStatusBar::entriesNoticeClicked);

    m_unfitting->setObjectName(u"unfittingButton"_s);
    m_unfitting->setIcon(MvIconRegistry::instance().icon(u"ico_studio_warning"_s));
    m_unfitting->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_unfitting->setAutoRaise(true);
    m_unfitting->setPopupMode(QToolButton::InstantPopup);
    m_unfitting->setFocusPolicy(Qt::TabFocus);
    auto *menu = new QMenu(m_unfitting);
    menu->setObjectName(u"unfittingMenu"_s);
    m_unfitting->setMenu(menu);
    m_unfitting->hide();
    connect(menu, &QMenu::aboutToShow, this, &MvStudioStatusBar::fillMenu);

    m_page->setObjectName(u"pageLabel"_s);
    m_page->setContentsMargins(6, 0, 6, 0);

    m_zoom->setObjectName(u"zoomBox"_s);
    m_zoom->setAccessibleName(tr("Zoom"));
    m_zoom->setToolTip(tr("Wie groß die Seite zu sehen ist; 100 % ist die Größe auf dem Papier"));
    m_zoom->setEditable(true);
    m_zoom->setInsertPolicy(QComboBox::NoInsert);
    m_zoom->addItem(tr("Ganze Seite"), 0.0);
    for (const int percent : {25, 50, 75, 100, 150, 200, 400})
        m_zoom->addItem(tr("%1 %").arg(percent), percent / 100.0);
    m_zoom->setFocusPolicy(Qt::StrongFocus);
    m_zoom->setMinimumContentsLength(11);
    connect(m_zoom, &QComboBox::activated, this, [this](int index) {
        const double zoom = m_zoom->itemData(index).toDouble();
        if (zoom > 0.0)
            Q_EMIT zoomRequested(zoom);
        else
            Q_EMIT fitRequested();
    });
    connect(m_zoom->lineEdit(), &QLineEdit::editingFinished, this, &MvStudioStatusBar::onZoomEntered);

    addPermanentWidget(m_entriesNotice);
    addPermanentWidget(m_unfitting);
    addPermanentWidget(m_page);
    addPermanentWidget(m_zoom);
}

void MvStudioStatusBar::setPage(int page, int pageCount, const QString &title)
{
    m_page->setText(pageCount > 0 ? tr("Seite %1 von %2 · %3").arg(page + 1).arg(pageCount).arg(title)
                                  : tr("Keine Seiten"));
}

void MvStudioStatusBar::setZoom(double zoom, bool isFitted)
{
    const QString percent = tr("%1 %").arg(std::lround(zoom * 100.0));
    m_zoomText = isFitted ? tr("Ganze Seite") : percent;
    m_zoom->setEditText(m_zoomText);
    m_zoom->lineEdit()->setCursorPosition(0);
    m_zoom->setAccessibleDescription(percent);
}

void MvStudioStatusBar::setPageShown(bool shown)
{
    m_page->setVisible(shown);
    m_zoom->setVisible(shown);
}

void MvStudioStatusBar::setUnfitting(const QList<MvPrintFinding> &entries)
{
    m_entries = entries;
    const bool areTexts = std::all_of(entries.begin(), entries.end(), [](const MvPrintFinding &entry) {
        return entry.kind == MvPrintFinding::Kind::CutText;
    });
    const int count = int(entries.size());
    m_unfitting->setText(areTexts ? tr("%n Texte ohne Platz", nullptr, count)
                                  : tr("%n Hinweise zum Druck", nullptr, count));
    m_unfitting->setToolTip(areTexts ? tr("Diese Texte mussten gekürzt werden, weil ihr Tag zu wenig Platz hat")
                                     : tr("Alles, was nicht gut gedruckt würde; ein Klick führt hin"));
    m_unfitting->setAccessibleName(m_unfitting->text());
    m_unfitting->setVisible(!entries.isEmpty());
}

void MvStudioStatusBar::setEntriesNotice(const QString &text)
{
    m_entriesNotice->setText(text);
    m_entriesNotice->setAccessibleName(text);
    m_entriesNotice->setVisible(!text.isEmpty());
}

void MvStudioStatusBar::onZoomEntered()
{
    static const QRegularExpression form(u"^\\s*(\\d{1,4})\\s*%?\\s*$"_s);
    const QString text = m_zoom->lineEdit()->text();
    if (text == m_zoomText)
        return;
    if (const auto match = form.match(text); match.hasMatch())
        Q_EMIT zoomRequested(match.captured(1).toDouble() / 100.0);
    else if (m_zoom->findText(text) < 0)
        m_zoom->setEditText(m_zoomText);
}

void MvStudioStatusBar::fillMenu()
{
    QMenu *menu = m_unfitting->menu();
    menu->clear();
    for (const MvPrintFinding &entry : m_entries.mid(0, mostMenuEntries)) {
        QAction *action = menu->addAction(entry.toString().replace(u'&', u"&&"_s));
        connect(action, &QAction::triggered, this, [this, entry] { Q_EMIT noteChosen(entry); });
    }
    if (m_entries.size() > mostMenuEntries)
        menu->addAction(tr("… und %1 weitere").arg(m_entries.size() - mostMenuEntries))->setEnabled(false);
}
