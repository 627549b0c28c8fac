// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "flows/MvPrintPlacement.h"

#include <QDialog>

#include <functional>
#include <memory>

class MvPrintWatch;
class QAction;
class QComboBox;
class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QToolBar;
class QVBoxLayout;
struct MvPrintFinding;

/// Shows pages as the chosen printer will print them, to be leafed through and looked at closely, and asks which of
/// them it is to print. The paper is the calendar's own and not to be chosen here.
class MvPrintPreview : public QDialog
{
    Q_OBJECT

public:
    /// Paints the pages on the printer, for the preview.
    using Paint = std::function<void(QPrinter *, const MvPrintPlacement &)>;

    /// The watch, which is not owned, knows what would not print well: it is listed below the pages.
    MvPrintPreview(const std::shared_ptr<QPrinter> &printer, const MvPrintPlacement::Extent &extent, const Paint &paint,
                   MvPrintWatch *watch, QWidget *parent);
    ~MvPrintPreview() override;

    int pageCount() const;
    /// How large the pages are to be printed.
    MvPrintPlacement::Size printSize() const;
    QPrinter *printer() const { return m_printer.get(); }
    /// Shows the pages as the printer places them now, after another one was chosen or it was set up otherwise.
    void followPrinter();

Q_SIGNALS:
    /// The printer has been told what to print, and the dialog closes.
    void printRequested();
    /// There is no printer: the user wants a file instead. The dialog closes.
    void pdfRequested();
    /// Somebody would rather see to this before. The dialog closes.
    void placeWanted(const MvPrintFinding &finding);

private:
    void addFindings(QVBoxLayout *column);
    QAction *addAction(QToolBar *bar, const QString &name, const QString &text, const QList<QKeySequence> &keys);
    QToolBar *createToolBar();
    QWidget *createPrinterRow();
    QWidget *createSizeRow();
    void tellSize();
    void showPage(int page);
    void update();
    void askForPrinter();

    std::shared_ptr<QPrinter> m_printer;
    const MvPrintPlacement::Extent m_extent;
    QPrintPreviewWidget *m_preview;
    MvPrintWatch *m_watch;
    QLabel *m_page;
    QComboBox *m_size;
    QWidget *m_sizeRow;
    QLabel *m_sizeNote;
    QAction *m_previous = nullptr;
    QAction *m_next = nullptr;
};
