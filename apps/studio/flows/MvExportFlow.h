// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPressSettings.h"
#include "flows/MvExportOptions.h"

#include <QObject>

class MvExportJob;
class MvProject;
class MvPrintWatch;
class MvProgressDialog;
struct MvExportResult;
struct MvPrintFinding;
class QWidget;

/// Exports the open project: asks where to, tells what is missing before, shows how far it has come, and tells
/// afterwards what did not fit.
class MvExportFlow : public QObject
{
    Q_OBJECT

public:
    /// Project and watch are not owned. The window is the parent of all dialogs.
    MvExportFlow(MvProject *project, MvPrintWatch *watch, QWidget *window);

    bool isRunning() const { return m_job != nullptr; }

public Q_SLOTS:
    void startPdf() { start(MvExportOptions::Kind::Pdf); }
    void startPng() { start(MvExportOptions::Kind::Png); }
    /// The page that is offered as the shown one, counted from 0.
    void setCurrentPage(int page) { m_currentPage = page; }

Q_SIGNALS:
    void message(const QString &text);
    /// Somebody would rather see to this before.
    void placeWanted(const MvPrintFinding &finding);

private:
    void start(MvExportOptions::Kind kind);
    /// What would spoil the print and was not in sight yet is asked about: photos that are missing or very coarse,
    /// empty frames.
    void warnAndRun(const MvExportOptions &options);
    QStringList gravest(const MvExportOptions &options) const;
    void run(const MvExportOptions &options);
    void finish(const MvExportResult &result);
    void tellDone(const MvExportResult &result, const QString &notes);
    QString printNotes(const MvExportJob &job, const MvExportResult &result) const;

    MvProject *m_project;
    MvPrintWatch *m_watch;
    QWidget *m_window;
    MvExportJob *m_job = nullptr;
    MvExportOptions m_options; // of the running job
    MvPressSettings m_press;   // as well
    int m_currentPage = 0;
};
