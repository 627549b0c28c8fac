// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPrintFinding.h"

#include <QDialog>
#include <QList>

class MvProject;
class QLabel;
class QListWidget;
class QPushButton;

/// Everything that would not print well, page by page, to be gone through: it stays open beside the window, and each
/// line leads to its place.
class MvPrintCheckDialog : public QDialog
{
    Q_OBJECT

public:
    /// Looks at once, and again after changes. The project is not owned. Deletes itself when it is closed.
    MvPrintCheckDialog(MvProject *project, QWidget *parent);

Q_SIGNALS:
    void findingChosen(const MvPrintFinding &finding);

private:
    void look();
    void chooseCurrent();

    MvProject *m_project;
    QLabel *m_summary;
    QListWidget *m_list;
    QPushButton *m_show = nullptr;
    QList<MvPrintFinding> m_findings;
};
