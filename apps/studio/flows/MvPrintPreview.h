// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

class QAction;
class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QToolBar;

/// Shows pages as they will be printed, to be leafed through and looked at closely, and asks for the printer and which
/// pages it is to print. The paper is the calendar's own and not to be chosen here.
class MvPrintPreview : public QDialog
{
    Q_OBJECT

public:
    /// Paints the pages on the printer, for the preview.
    using Paint = std::function<void(QPrinter *)>;

    MvPrintPreview(const std::shared_ptr<QPrinter> &printer, const Paint &paint, QWidget *parent);
    ~MvPrintPreview() override;

    int pageCount() const;
    QPrinter *printer() const { return m_printer.get(); }

Q_SIGNALS:
    /// The printer has been told what to print, and the dialog closes.
    void printRequested();
    /// There is no printer: the user wants a file instead. The dialog closes.
    void pdfRequested();

private:
    QAction *addAction(QToolBar *bar, const QString &name, const QString &text, const QList<QKeySequence> &keys);
    QToolBar *createToolBar();
    void showPage(int page);
    void update();
    void askForPrinter();

    std::shared_ptr<QPrinter> m_printer;
    QPrintPreviewWidget *m_preview;
    QLabel *m_page;
    QAction *m_previous = nullptr;
    QAction *m_next = nullptr;
};
