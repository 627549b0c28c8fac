// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintFlow.h"

#include "common/MvProgressDialog.h"
#include "common/MvStudioMessage.h"
#include "flows/MvPrintPages.h"
#include "flows/MvPrintPreview.h"

#include "MvProject/MvExportJob.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvProject.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QWidget>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Numbers counted from 0.
QList<int> pagesToPrint(const QPrinter &printer, int count)
{
    const bool isPart = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = isPart ? std::clamp(printer.fromPage(), 1, count) : 1;
    const int last = isPart ? std::clamp(printer.toPage(), first, count) : count;
    QList<int> numbers;
    for (int number = first; number <= last; ++number)
        numbers.append(number - 1);
    return numbers;
}

} // namespace

MvPrintFlow::MvPrintFlow(MvProject *project, MvPrintWatch *watch, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_watch(watch)
    , m_window(window)
{}

void MvPrintFlow::start()
{
    if (!m_project->document().isValid()) {
        MvStudioMessage::error(m_window, tr("Der Kalender hat keine Seiten zum Drucken."));
        return;
    }
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
        showPreview();
        return;
    }
    QMessageBox *box = MvStudioMessage::question(
        m_window, u"noPrinterQuestion"_s, tr("Auf diesem Rechner ist kein Drucker eingerichtet."),
        tr("Sie können den Kalender als PDF exportieren und anderswo drucken lassen, oder sich "
           "ansehen, wie er gedruckt aussähe."));
    QPushButton *pdf = box->addButton(tr("Als &PDF exportieren …"), QMessageBox::AcceptRole);
    QPushButton *preview = box->addButton(tr("&Vorschau"), QMessageBox::ActionRole);
    QPushButton *cancel =
        box->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Cancel), QMessageBox::RejectRole);
    pdf->setObjectName(u"pdfButton"_s);
    preview->setObjectName(u"previewButton"_s);
    box->setDefaultButton(pdf);
    box->setEscapeButton(cancel);
    connect(box, &QMessageBox::buttonClicked, this, [this, pdf, preview](QAbstractButton *button) {
        if (button == pdf)
            Q_EMIT pdfRequested();
        else if (button == preview)
            showPreview();
    });
    box->open();
}

void MvPrintFlow::showPreview()
{
    if (m_pages || m_printing)
        return;
    m_pages = new MvPrintPages(m_project->document(), this);
    auto *dialog = new MvProgressDialog(tr("Druckvorschau"), tr("Die Seiten werden vorbereitet …"), m_window);
    connect(m_pages, &MvPrintPages::progress, dialog, &MvProgressDialog::setProgress);
    connect(m_pages, &MvPrintPages::ready, dialog, &MvProgressDialog::finish);
    connect(m_pages, &MvPrintPages::ready, this, &MvPrintFlow::openPreview);
    connect(dialog, &MvProgressDialog::canceled, this, &MvPrintFlow::cancelPreview);
    connect(m_pages, &QObject::destroyed, dialog, &MvProgressDialog::finish);
    dialog->open();
    m_pages->start();
}

/// The last page may be ready before they are deleted: nobody wants to know it then.
void MvPrintFlow::cancelPreview()
{
    m_pages->disconnect(this);
    m_pages->deleteLater();
    m_pages = nullptr;
}

void MvPrintFlow::openPreview()
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(m_project->displayName());
    const MvPrintPlacement::Extent extent = MvPrintPlacement::extentOf(m_project->document());
    MvPrintPlacement::setPaper(printer.get(), extent.page);
    auto *dialog = new MvPrintPreview(
        printer, extent,
        [pages = m_pages.get()](QPrinter *target, const MvPrintPlacement &placement) {
            paint(target, pages->pageSource(), placement);
        },
        m_watch, m_window);
    dialog->resize(m_window->size().expandedTo({800, 600}) - QSize(60, 60));
    m_pages->setParent(dialog);
    connect(dialog, &MvPrintPreview::printRequested, this,
            [this, printer, dialog] { print(printer, dialog->printSize()); });
    connect(dialog, &MvPrintPreview::pdfRequested, this, &MvPrintFlow::pdfRequested);
    connect(dialog, &MvPrintPreview::placeWanted, this, &MvPrintFlow::placeWanted);
    // the preview needs a moment to open; until then the progress dialog can close
    QMetaObject::invokeMethod(dialog, &QDialog::open, Qt::QueuedConnection);
}

/// The preview closes now; its printer goes on.
void MvPrintFlow::print(const std::shared_ptr<QPrinter> &printer, MvPrintPlacement::Size size)
{
    const MvPrintPlacement placement(*printer, MvPrintPlacement::extentOf(m_project->document()), size);
    m_percent = placement.percent();
    const auto write = [printer, placement](const MvPageSource &pages, MvExportObserver *observer) {
        return paint(printer.get(), pages, placement, observer);
    };
    m_printing = new MvExportJob(m_project->document(), write, MvPdfExporter::resolution, this);
    m_printing->setPages(pagesToPrint(*printer, int(m_project->document().pages().size())));
    auto *dialog = new MvProgressDialog(tr("Drucken"), tr("Die Seiten werden an den Drucker gegeben …"), m_window);
    connect(m_printing, &MvExportJob::progress, dialog, &MvProgressDialog::setProgress);
    connect(m_printing, &MvExportJob::finished, dialog, &MvProgressDialog::finish);
    connect(dialog, &MvProgressDialog::canceled, m_printing, &MvExportJob::cancel);
    connect(m_printing, &MvExportJob::finished, this, &MvPrintFlow::tellPrinted);
    dialog->open();
    m_printing->start();
}

void MvPrintFlow::tellPrinted(const MvExportResult &result)
{
    m_printing->deleteLater();
    m_printing = nullptr;
    if (!result.error.isEmpty())
        MvStudioMessage::error(m_window, tr("Der Kalender wurde nicht gedruckt."), result.error);
    else
        Q_EMIT message(result.isCancelled ? tr("Drucken abgebrochen")
                       : m_percent < 100  ? tr("An den Drucker gegeben, auf %1 % verkleinert").arg(m_percent)
                                          : tr("An den Drucker gegeben"));
}

void MvPrintFlow::paint(QPrinter *printer) const
{
    const MvPageSource source = m_project->document().pageSource();
    paint(printer, source.part(pagesToPrint(*printer, int(source.pages.size()))),
          {*printer, MvPrintPlacement::extentOf(m_project->document()), MvPrintPlacement::Size::Fitting});
}

MvExportResult MvPrintFlow::paint(QPrinter *printer, const MvPageSource &source, const MvPrintPlacement &placement,
                                  MvExportObserver *observer)
{
    QPainter painter;
    if (!painter.begin(printer))
        return MvExportResult::failed(tr("Der Drucker nimmt keine Seiten an."));
    const int total = int(source.pages.size());
    for (int number = 0; number < total; ++number) {
        if (number > 0 && !printer->newPage())
            return MvExportResult::failed(tr("Der Drucker nimmt keine weiteren Seiten an."));
        source.paintPage(painter, number, placement.corner(), placement.scale());
        if (observer && observer->isCancelled()) {
            printer->abort();
            return MvExportResult::cancelled();
        }
        if (observer)
            observer->pagesDone(number + 1, total);
    }
    return {};
}
