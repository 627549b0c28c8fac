// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPrintFinding.h"

#include <QListWidget>

/// What would not print well, a line each, with a sign before what everybody would see. Where nothing is found it says
/// so.
class MvPrintFindingList : public QListWidget
{
    Q_OBJECT

public:
    explicit MvPrintFindingList(QWidget *parent = nullptr);

    /// The line that was chosen stays, if it is still there. While pages are still being looked at the list says that.
    void setFindings(const QList<MvPrintFinding> &findings, bool isComplete = true);
    const QList<MvPrintFinding> &findings() const { return m_findings; }
    /// Null when no line is chosen.
    const MvPrintFinding *current() const;
    /// How many there are, in words.
    static QString summary(qsizetype count);

Q_SIGNALS:
    /// Another line is chosen.
    void currentChanged(const MvPrintFinding &finding);
    /// Somebody wants to go there: a double click, or the return key.
    void placeWanted(const MvPrintFinding &finding);

private:
    QList<MvPrintFinding> m_findings;
};
