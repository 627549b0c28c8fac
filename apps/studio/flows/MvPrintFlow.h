// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "flows/MvPrintPlacement.h"

#include <QObject>
#include <QPointer>

#include <memory>

class MvExportJob;
class MvExportObserver;
class MvPageSource;
class MvPrintPages;
class MvPrintWatch;
class MvProject;
class QPrinter;
class QWidget;
struct MvPrintFinding;

/// Prints the open project, after a preview.
class MvPrintFlow : public QObject
{
    Q_OBJECT

public:
    /// Project and watch are not owned. The window is the parent of all dialogs.
    MvPrintFlow(MvProject *project, MvPrintWatch *watch, QWidget *window);

    /// Paints the pages that the printer is to print, as large as fits the paper and its margins.
    void paint(QPrinter *printer) const;
    /// Paints pages of the source at their place. Any thread; ends early, without a page printed, when the observer, if
    /// any, wants to.
    static MvExportResult paint(QPrinter *printer, const MvPageSource &source, const MvPrintPlacement &placement,
                                MvExportObserver *observer = nullptr);

public Q_SLOTS:
    /// Shows the preview; without any printer asks first what to do.
    void start();
    /// Makes the pages ready, then shows them.
    void showPreview();

Q_SIGNALS:
    /// The user wants a file instead.
    void pdfRequested();
    /// Somebody would rather see to this before.
    void placeWanted(const MvPrintFinding &finding);
    /// For the status bar.
    void message(const QString &text);

private:
    void cancelPreview();
    void openPreview();
    void print(const std::shared_ptr<QPrinter> &printer, MvPrintPlacement::Size size);
    void tellPrinted(const MvExportResult &result);

    MvProject *m_project;
    MvPrintWatch *m_watch;
    QWidget *m_window;
    QPointer<MvPrintPages> m_pages; // of the preview that is being made ready or shown
    QPointer<MvExportJob> m_printing;
    int m_percent = 100; // of their size that the pages are printed in
};
