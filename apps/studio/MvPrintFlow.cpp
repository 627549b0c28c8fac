#include "MvPrintFlow.h"

#include "MvProject/MvPageSource.h"
#include "MvProject/MvProject.h"
#include "MvStudioMessage.h"

#include <QAction>
#include <QCoreApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QWidget>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double tenthsPerInch = 254.0;

void adopt(const MvPageFormat &format, QPrinter *printer)
{
    const QSizeF millimetres = format.trimSize() / 10.0;
    const bool isLandscape = format.orientation() == MvPageFormat::Orientation::Landscape;
    // a page size is upright; its orientation stands beside it
    const QPageSize size(isLandscape ? millimetres.transposed() : millimetres, QPageSize::Millimeter, {},
                         QPageSize::FuzzyMatch);
    printer->setPageSize(size);
    printer->setPageOrientation(isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer->setFullPage(true);
    printer->setPageMargins({});
}

/// The preview offers another paper, which printers into a file do not even have; but the calendar knows its own.
void hidePageSetup(const QPrintPreviewDialog *dialog)
{
    const QString text = QCoreApplication::translate("QPrintPreviewDialog", "Page setup");
    for (QAction *action : dialog->findChildren<QAction *>())
        if (action->text() == text)
            action->setVisible(false);
}

} // namespace

MvPrintFlow::MvPrintFlow(MvProject *project, QWidget *window)
    : QObject(window)
    , m_project(project)
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
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(m_project->displayName());
    adopt(m_project->document().format(), printer.get());
    auto *dialog = new QPrintPreviewDialog(printer.get(), m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"printPreview"_s);
    dialog->setWindowTitle(tr("Druckvorschau"));
    dialog->resize(m_window->size().expandedTo({800, 600}) - QSize(60, 60));
    hidePageSetup(dialog);
    connect(dialog, &QPrintPreviewDialog::paintRequested, this, &MvPrintFlow::paint);
    connect(dialog, &QObject::destroyed, this, [printer] {}); // it outlives the dialog
    dialog->open();
}

void MvPrintFlow::paint(QPrinter *printer) const
{
    const MvPageSource source = m_project->document().pageSource();
    const int count = int(source.pages.size());
    const bool isPart = printer->printRange() == QPrinter::PageRange && printer->fromPage() > 0;
    const int first = isPart ? std::clamp(printer->fromPage(), 1, count) : 1;
    const int last = isPart ? std::clamp(printer->toPage(), first, count) : count;

    const QRectF paper = printer->paperRect(QPrinter::DevicePixel);
    const QSizeF page = source.format.trimSize();
    const double natural = printer->resolution() / tenthsPerInch;
    constexpr double rounding = 1.005; // whole points of the paper against tenths of a millimetre
    const double fitting = std::min(paper.width() / page.width(), paper.height() / page.height());
    const double scale = natural > fitting * rounding ? fitting : natural;
    const QPointF corner = paper.center() - QPointF(page.width(), page.height()) * scale / 2.0;

    QPainter painter;
    if (!painter.begin(printer))
        return;
    for (int number = first; number <= last; ++number) {
        if (number > first)
            printer->newPage();
        source.paintPage(painter, number - 1, corner, scale);
    }
}
