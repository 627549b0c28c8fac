#pragma once

#include <QObject>

class MvProject;
class QPrinter;
class QWidget;

/// Prints the open project, after a preview.
class MvPrintFlow : public QObject
{
    Q_OBJECT

public:
    /// The project is not owned. The window is the parent of all dialogs.
    MvPrintFlow(MvProject *project, QWidget *window);

    /// Paints the pages that the printer is to print, each as large as it is, or smaller where the paper is.
    void paint(QPrinter *printer) const;

public Q_SLOTS:
    /// Shows the preview; without any printer asks first what to do.
    void start();
    void showPreview();

Q_SIGNALS:
    /// The user wants a file instead.
    void pdfRequested();

private:
    MvProject *m_project;
    QWidget *m_window;
};
