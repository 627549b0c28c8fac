// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventTransferDialog.h"

#include "MvPaint/MvPrintableText.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Dialog = MvCalendarEventTransferDialog;

enum Column { NameColumn, DateColumn, StateColumn };

QString nameOf(const MvCalendarEvent &event)
{
    return MvPrintableText::inShort(event.description());
}

QString dateOf(const MvCalendarEvent &event)
{
    return MvCalendarEvent::dateText(event.dateTime().date());
}

/// What the other list has in its place, as far as it differs.
QString stateOf(const MvCalendarEventMerge::Difference &difference, Dialog::Direction direction)
{
    if (!difference.there.isValid())
        return MvCalendarEventTransferDialog::tr("neu");
    QStringList parts;
    if (difference.there.description() != difference.here.description())
        parts.append(MvCalendarEventTransferDialog::tr("„%1“").arg(nameOf(difference.there)));
    if (difference.there.dateTime().date() != difference.here.dateTime().date())
        parts.append(dateOf(difference.there));
    if (parts.isEmpty())
        parts.append(difference.there.foto() == difference.here.foto()
                         ? MvCalendarEventTransferDialog::tr("mit anderen Angaben")
                         : MvCalendarEventTransferDialog::tr("mit anderem Foto"));
    return direction == Dialog::Direction::FromOwn
               ? MvCalendarEventTransferDialog::tr("im Kalender: %1").arg(parts.join(u", "_s))
               : MvCalendarEventTransferDialog::tr("in Ihren Einträgen: %1").arg(parts.join(u", "_s));
}

} // namespace

MvCalendarEventTransferDialog::MvCalendarEventTransferDialog(const Differences &differences, Direction direction,
                                                             QWidget *parent)
    : QDialog(parent)
    , m_differences(differences)
    , m_list(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"transferEntriesDialog"_s);
    const bool isFromOwn = direction == Direction::FromOwn;
    setWindowTitle(isFromOwn ? tr("Aus meinen Einträgen übernehmen") : tr("In meine Einträge übernehmen"));
    std::stable_sort(m_differences.begin(), m_differences.end(),
                     [](const auto &a, const auto &b) { return MvCalendarEvent::lessThanDate(a.here, b.here); });
    const int count = int(m_differences.size());
    auto *text = new QLabel(
        isFromOwn ? tr("%n Ihrer Einträge fehlen in diesem Kalender oder stehen dort anders. Was angekreuzt ist, kommt "
                       "hinein; Ihre eigenen bleiben, wie sie sind.",
                       nullptr, count)
                  : tr("%n Einträge dieses Kalenders fehlen in Ihren eigenen oder stehen dort anders. Was angekreuzt "
                       "ist, kommt hinein; der Kalender bleibt, wie er ist.",
                       nullptr, count),
        this);
    text->setWordWrap(true);
    m_list->setObjectName(u"transferEntriesList"_s);
    m_list->setAccessibleName(tr("Einträge"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels({tr("Eintrag"), tr("Datum"), tr("Unterschied")});
    for (const MvCalendarEventMerge::Difference &difference : std::as_const(m_differences))
        addRow(difference, direction);
    m_list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(DateColumn, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(StateColumn, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_list->setCurrentItem(m_list->topLevelItem(0));

    auto *all = new QPushButton(tr("Alle"), this);
    auto *none = new QPushButton(tr("Keinen"), this);
    all->setObjectName(u"tickAllButton"_s);
    none->setObjectName(u"tickNoneButton"_s);
    auto *buttons = new QDialogButtonBox(this);
    m_take = buttons->addButton(tr("Übernehmen"), QDialogButtonBox::AcceptRole);
    m_take->setObjectName(u"transferButton"_s);
    buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(all, &QPushButton::clicked, this, [this] { tickAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { tickAll(false); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemChanged, this, &MvCalendarEventTransferDialog::updateButton);

    auto *row = new QHBoxLayout;
    row->addWidget(all);
    row->addWidget(none);
    row->addStretch();
    row->addWidget(buttons);
    auto *column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_list, 1);
    column->addLayout(row);
    m_list->setFocus();
    resize(680, 420);
    updateButton();
}

MvCalendarEventTransferDialog::~MvCalendarEventTransferDialog() = default;

void MvCalendarEventTransferDialog::addRow(const MvCalendarEventMerge::Difference &difference, Direction direction)
{
    const QString state = stateOf(difference, direction);
    auto *row = new QTreeWidgetItem(m_list, {nameOf(difference.here), dateOf(difference.here), state});
    row->setToolTip(StateColumn, state);
    row->setCheckState(NameColumn, difference.there.isValid() ? Qt::Unchecked : Qt::Checked);
}

void MvCalendarEventTransferDialog::tickAll(bool ticked)
{
    {
        const QSignalBlocker blocker(m_list);
        for (int row = 0; row < m_list->topLevelItemCount(); ++row)
            m_list->topLevelItem(row)->setCheckState(NameColumn, ticked ? Qt::Checked : Qt::Unchecked);
    }
    m_list->viewport()->update();
    updateButton();
}

void MvCalendarEventTransferDialog::updateButton()
{
    m_take->setEnabled(!chosen().isEmpty());
}

MvCalendarEventTransferDialog::Differences MvCalendarEventTransferDialog::chosen() const
{
    Differences chosen;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        if (m_list->topLevelItem(row)->checkState(NameColumn) == Qt::Checked)
            chosen.append(m_differences.at(row));
    }
    return chosen;
}
