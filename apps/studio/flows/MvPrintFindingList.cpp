// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintFindingList.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QPixmap>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

MvPrintFindingList::MvPrintFindingList(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(u"printFindings"_s);
    setAccessibleName(tr("Was nicht gut gedruckt würde"));
    setWordWrap(true);
    const int side = fontMetrics().height();
    setIconSize({side, side});
    setAlternatingRowColors(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentRowChanged, this, [this] {
        if (current())
            Q_EMIT currentChanged(*current());
    });
    connect(this, &QListWidget::itemActivated, this, [this] {
        if (current())
            Q_EMIT placeWanted(*current());
    });
}

void MvPrintFindingList::setFindings(const QList<MvPrintFinding> &findings, bool isComplete)
{
    const QSignalBlocker quiet(this);
    const int row = currentRow();
    m_findings = findings;
    clear();
    const QIcon warning = MvIconRegistry::instance().icon(u"ico_studio_warning"_s);
    QPixmap blank(iconSize());
    blank.fill(Qt::transparent);
    const QIcon none(blank); // the texts begin at one edge
    for (const MvPrintFinding &finding : std::as_const(m_findings)) {
        auto *item = new QListWidgetItem(none, finding.toString(), this);
        if (finding.severity == MvPrintFinding::Severity::Strong) {
            item->setIcon(warning);
            item->setData(Qt::AccessibleDescriptionRole, tr("Das sieht jeder."));
        }
    }
    if (!isComplete || m_findings.isEmpty()) {
        auto *item = new QListWidgetItem(isComplete ? tr("Alles wird gut gedruckt, soweit das Programm sehen kann.")
                                                    : tr("Die Seiten werden geprüft …"),
                                         this);
        item->setFlags(Qt::ItemIsEnabled);
        item->setForeground(palette().placeholderText());
    }
    setCurrentRow(m_findings.isEmpty() ? -1 : qBound(0, row, int(m_findings.size()) - 1));
}

const MvPrintFinding *MvPrintFindingList::current() const
{
    return currentRow() >= 0 && currentRow() < m_findings.size() ? &m_findings.at(currentRow()) : nullptr;
}

QString MvPrintFindingList::summary(qsizetype count)
{
    return count == 0 ? tr("Alles wird gut gedruckt, soweit das Programm sehen kann.")
                      : tr("%n Stellen; ein Dreieck steht vor denen, die jeder sieht.", nullptr, int(count));
}
