// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPrintFinding.h"

#include <QDialog>

class MvPrintFindingList;
class MvPrintWatch;
class QLabel;
class QPushButton;

/// Everything that would not print well, page by page, to be gone through: it stays open beside the window, and each
/// line leads to its place.
class MvPrintCheckDialog : public QDialog
{
    Q_OBJECT

public:
    /// Follows the watch, which is not owned. Deletes itself when it is closed.
    MvPrintCheckDialog(MvPrintWatch *watch, QWidget *parent);

Q_SIGNALS:
    void findingChosen(const MvPrintFinding &finding);

private:
    void look();

    MvPrintWatch *m_watch;
    QLabel *m_summary;
    MvPrintFindingList *m_list;
    QPushButton *m_show = nullptr;
};
