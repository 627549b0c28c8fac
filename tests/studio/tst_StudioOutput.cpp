// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvStudioTest.h"
#include "MvTestFiles.h"
#include "flows/MvExportDialog.h"
#include "flows/MvPagePreview.h"
#include "flows/MvPrintFlow.h"
#include "flows/MvPrintPages.h"
#include "flows/MvPrintPlacement.h"
#include "flows/MvPrintPreview.h"
#include "flows/MvPrintWatch.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

/// What leaves the studio: the dialog for exports and what it refuses, the print preview and its printer.
class tst_StudioOutput : public MvStudioTest
{
    Q_OBJECT

private Q_SLOTS:
    void exportErrors();
    void exportSheets();
    void previewIsWhatComesOut_data();
    void previewIsWhatComesOut();
    void placements_data();
    void placements();
    void chosenSize();
    void print();
    void cancelledPreview();
};

/// One that leaves the margin white at the left, and half of it elsewhere; in millimetres.
static std::shared_ptr<QPrinter> printerWith(const QSizeF &paper, double margin)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    QPageLayout layout(QPageSize(paper, QPageSize::Millimeter), QPageLayout::Portrait, {}, QPageLayout::Millimeter,
                       {margin, margin / 2.0, margin / 2.0, margin / 2.0});
    layout.setMode(QPageLayout::FullPageMode);
    printer->setPageLayout(layout);
    return printer;
}

void tst_StudioOutput::exportErrors()
{
    trigger("exportPng");
    QDialog *settings = dialog("exportDialog");
    auto *button = settings->findChild<QPushButton *>(u"exportButton"_s);
    auto *message = settings->findChild<QLabel *>(u"exportMessage"_s);
    auto *target = settings->findChild<QLineEdit *>(u"exportTarget"_s);
    auto *pattern = settings->findChild<QLineEdit *>(u"exportPattern"_s);
    pattern->setText(u"%n.png"_s);
    QVERIFY2(button->isEnabled(), qPrintable(message->text()));
    target->setText(path(u"gibt es nicht"_s));
    QVERIFY(!button->isEnabled());
    QVERIFY(message->text().contains(u"gibt es nicht"_s));
    target->setText(path({}));
    pattern->setText(u"immer gleich.png"_s);
    QVERIFY(!button->isEnabled());
    settings->findChild<QComboBox *>(u"exportPages"_s)->setCurrentIndex(1);
    QVERIFY(button->isEnabled()); // a single page
    settings->findChild<QComboBox *>(u"exportPages"_s)->setCurrentIndex(2);
    auto *pages = settings->findChild<QLineEdit *>(u"exportPageText"_s);
    pages->setText(u"13"_s);
    QVERIFY(message->text().contains(u"1 bis 12"_s));

    // what is told to be replaced is what would be written
    QVERIFY(MvTestFiles::write(path(u"k-05.png"_s), {}));
    pattern->setText(u"k-%n"_s);
    for (const auto &[text, isReplaced] :
         {std::pair(u"5-6"_s, true), std::pair(u"1-5"_s, true), std::pair(u"8-12"_s, false)}) {
        pages->setText(text);
        QCOMPARE(message->text().contains(u"ersetzt"_s), isReplaced);
    }
    settings->findChild<QSpinBox *>(u"exportDpi"_s)->setValue(300);
    QVERIFY(message->text().contains(u"3508 × 2480"_s));
    MvCalendarDocument large = project()->document();
    large.setFormat(MvPageFormat::fromName(u"1000x1000"_s));
    settings->reject();
    project()->change(large, u"Format"_s);
    trigger("exportPng");
    settings = dialog("exportDialog");
    settings->findChild<QSpinBox *>(u"exportDpi"_s)->setValue(1200);
    QVERIFY(!settings->findChild<QPushButton *>(u"exportButton"_s)->isEnabled());
    QVERIFY(settings->findChild<QLabel *>(u"exportMessage"_s)->text().contains(u"erlaubt sind 32000"_s));
}

void tst_StudioOutput::exportSheets()
{
    trigger("exportPdf");
    QDialog *settings = dialog("exportDialog");
    auto *button = settings->findChild<QPushButton *>(u"exportButton"_s);
    auto *message = settings->findChild<QLabel *>(u"exportMessage"_s);
    auto *sheets = settings->findChild<QComboBox *>(u"exportSheets"_s);
    auto *press = settings->findChild<QComboBox *>(u"exportPress"_s);
    auto *cutting = settings->findChild<QCheckBox *>(u"exportCutting"_s);
    const QString file = path(u"blätter.pdf"_s);
    settings->findChild<QLineEdit *>(u"exportTarget"_s)->setText(file);
    sheets->setCurrentIndex(1);
    QVERIFY(!button->isEnabled() && message->text().contains(u"passt auf ein Blatt"_s)); // A4 on A4
    auto *edge = settings->findChild<QComboBox *>(u"exportBleedEdge"_s);
    auto *colors = settings->findChild<QCheckBox *>(u"exportKeepColors"_s);
    auto *shopsOnly = settings->findChild<QLabel *>(u"exportPressReason"_s);
    QVERIFY(!edge->isEnabled() && !colors->isEnabled() && shopsOnly->isVisible());
    press->setCurrentIndex(1);
    QVERIFY(!sheets->isEnabled() && button->isEnabled());
    QVERIFY(edge->isEnabled() && colors->isEnabled() && !shopsOnly->isVisible());
    edge->setCurrentIndex(1);
    colors->setChecked(true);
    const MvPressSettings asked = static_cast<MvExportDialog *>(settings)->options().forPress;
    QVERIFY(asked.keepsFotoColors && asked.bleedKind == MvPressSettings::Bleed::Stretched);
    press->setCurrentIndex(0);
    settings->findChild<QComboBox *>(u"exportPaper"_s)->setCurrentText(u"A5"_s);
    QVERIFY2(message->text().contains(u"2 × 2 Blättern"_s), qPrintable(message->text()));
    sheets->setCurrentIndex(3);
    settings->findChild<QComboBox *>(u"exportPaper"_s)->setCurrentText(u"A4"_s);
    QVERIFY(cutting->isVisible() && message->text().contains(u"3 Blätter"_s));
    auto *twoSided = settings->findChild<QCheckBox *>(u"exportTwoSided"_s);
    QVERIFY(!twoSided->isEnabled());
    cutting->setChecked(true);
    twoSided->setChecked(true);
    QVERIFY(twoSided->isEnabled() && message->text().contains(u"2 Blätter"_s)); // of four sides
    click(settings, "exportButton");
    QTRY_VERIFY_WITH_TIMEOUT(dialog<QMessageBox>("informationMessage"), 60000);
    dialog<QMessageBox>("informationMessage")->close();
    QCOMPARE(MvTestFiles::outputOf(u"qpdf"_s, {u"--show-npages"_s, file}).trimmed(), QByteArray("4"));
    trigger("exportPdf"); // as it was the last time
    settings = dialog("exportDialog");
    const MvExportOptions again = static_cast<MvExportDialog *>(settings)->options();
    QVERIFY(again.forPress.keepsFotoColors && settings->findChild<QCheckBox *>(u"exportTwoSided"_s)->isChecked());
    settings->reject();
}

void tst_StudioOutput::previewIsWhatComesOut_data()
{
    const MvRows<int, bool, QString, int, int> row; // choice, isCut, press, page, sheet
    row("four pages on a sheet", 3, false, QString(), 5, 1);
    row("the back of what is cut", 3, true, QString(), 1, 1);
    row("a made-up bleed", 0, false, u"fogra39"_s, 0, 0);
}

/// Its picture of the sheet with a photo, beside the same one of the file.
void tst_StudioOutput::previewIsWhatComesOut()
{
    const auto [choice, isCut, press, page, sheet] = MvRows<int, bool, QString, int, int>::current();
    const QString foto = m_studio->writeFoto(u"foto.png"_s, Qt::darkGreen);
    MvCalendarPage changed = project()->document().pages().at(page);
    changed.setFotoFrame(MvFotoFrame(foto));
    project()->changePage(page, changed, u"Foto"_s);
    trigger("exportPdf");
    QDialog *settings = dialog("exportDialog");
    settings->findChild<QLineEdit *>(u"exportTarget"_s)->setText(path(u"k.pdf"_s));
    auto *inks = settings->findChild<QComboBox *>(u"exportPress"_s);
    inks->setCurrentIndex(inks->findData(press));
    settings->findChild<QDoubleSpinBox *>(u"exportBleed"_s)->setValue(0.0);
    settings->findChild<QComboBox *>(u"exportSheets"_s)->setCurrentIndex(choice);
    settings->findChild<QCheckBox *>(u"exportCutting"_s)->setChecked(isCut);
    settings->findChild<QCheckBox *>(u"exportTwoSided"_s)->setChecked(isCut);
    auto *preview = settings->findChild<MvPagePreview *>();
    preview->showPage(page);
    const auto greens = [preview] {
        const QImage picture = preview->picture();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixelColor(x, y) == QColor(Qt::darkGreen) ? 1 : 0;
        return count;
    };
    QTRY_VERIFY(greens() > 500);
    const QImage shown = preview->picture().convertToFormat(QImage::Format_Grayscale8);
    click(settings, "exportButton");
    if (auto *question = dialog<QMessageBox>("missingPhotosQuestion"))
        click(question, "exportAnywayButton");
    QTRY_VERIFY_WITH_TIMEOUT(dialog<QMessageBox>("informationMessage"), 60000);
    dialog<QMessageBox>("informationMessage")->close();

    const QString number = QString::number(sheet + 1);
    MvTestFiles::outputOf(u"pdftoppm"_s, {u"-r"_s, u"254"_s, u"-gray"_s, u"-png"_s, u"-f"_s, number, u"-l"_s, number,
                                          u"-singlefile"_s, path(u"k.pdf"_s), path(u"k"_s)});
    QImage printed(path(u"k.png"_s)); // a pixel of a tenth of a millimetre
    printed = printed.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int strange = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            strange += std::abs(qGray(shown.pixel(x, y)) - qGray(printed.pixel(x, y))) > 64 ? 1 : 0;
    QVERIFY2(strange * 100 < shown.width() * shown.height(), qPrintable(QString::number(strange)));
}

void tst_StudioOutput::placements_data()
{
    // paper: mm; margin: that the printer leaves white at the left edge; half of it elsewhere; read: of an A4 page,
    // tenths of a millimetre
    const MvRows<QSizeF, double, QRectF, int> row;
    const QSizeF a4(210.0, 297.0);
    const QRectF inside(120, 120, 1860, 2730);
    const QRectF all(0, 0, 2100, 2970);
    row("nothing in the margin", a4, 10.0, inside, 100);
    row("only photos", a4, 10.0, QRectF(), 100);
    row("days in the margin", a4, 10.0, all, 93); // 195 of 210 mm
    row("a wider one at the left", a4, 16.0, inside, 100);
    row("a wide one", a4, 40.0, inside, 81);                              // 150 of 186 mm, about the middle
    row("small paper with margins", QSizeF(148.0, 210.0), 10.0, all, 63); // 133 of 210 mm
}

void tst_StudioOutput::placements()
{
    const auto [paper, margin, read, percent] = MvRows<QSizeF, double, QRectF, int>::current();
    const auto printer = printerWith(paper, margin);
    QVERIFY(std::abs(MvPrintPlacement::whiteMargin(*printer) - margin) < 0.2);
    const MvPrintPlacement placement(*printer, {{2100, 2970}, read}, MvPrintPlacement::Size::Fitting);
    QCOMPARE(placement.percent(), percent);
    const double dots = printer->resolution() / 25.4;
    const QRectF page(placement.corner() / dots, QSizeF(210, 297) * percent / 100.0);
    const QRectF seen(page.topLeft() + read.topLeft() * percent / 1000.0, read.size() * percent / 1000.0);
    const QRectF printable = QRectF(QPointF(), paper).adjusted(margin, margin / 2, -margin / 2, -margin / 2);
    if (!read.isEmpty())
        QVERIFY2(printable.adjusted(-2, -2, 2, 2).contains(seen), qPrintable(QDebug::toString(seen)));
}

void tst_StudioOutput::chosenSize()
{
    QList<int> percents; // that the pages were painted in
    const auto paint = [&](QPrinter *, const MvPrintPlacement &placement) { percents.append(placement.percent()); };
    MvPrintPreview preview(printerWith({210, 297}, 10.0), {{2100, 2970}, QRectF(0, 0, 2100, 2970)}, paint,
                           window()->findChild<MvPrintWatch *>(), nullptr);
    preview.setAttribute(Qt::WA_DeleteOnClose, false);
    preview.show();
    QTRY_VERIFY(percents.contains(93));
    auto *size = preview.findChild<QComboBox *>(u"previewSize"_s);
    QVERIFY(size->isVisible() && size->currentText().contains(u"93 %"_s));
    percents.clear();
    size->setCurrentIndex(1);
    QTRY_VERIFY(percents.contains(100) && !percents.contains(93));

    size->setCurrentIndex(0);
    preview.printer()->setPageLayout(printerWith({210, 297}, 0.0)->pageLayout());
    preview.followPrinter();
    QTRY_COMPARE(percents.last(), 100); // nothing is left white, and nothing to be chosen
    QVERIFY(!size->isVisible());
}

void tst_StudioOutput::print()
{
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        trigger("print");
        click(dialog("noPrinterQuestion"), "pdfButton");
        QVERIFY(dialog("exportDialog"));
        dialog("exportDialog")->reject();
    }
    auto *flow = window()->findChild<MvPrintFlow *>();
    flow->showPreview();
    QVERIFY(dialog("progressDialog"));
    QTRY_VERIFY(dialog<MvPrintPreview>("printPreview"));
    auto *preview = dialog<MvPrintPreview>("printPreview");
    QTRY_VERIFY(preview->isVisible());
    QVERIFY(!dialog("progressDialog"));
    QCOMPARE(preview->pageCount(), 12);
    auto *number = preview->findChild<QLabel *>(u"previewPage"_s);
    preview->findChild<QAction *>(u"preview_page_next"_s)->trigger();
    QCOMPARE(number->text(), u"Seite 2 von 12"_s);
    preview->printer()->setOutputFormat(QPrinter::PdfFormat);
    preview->printer()->setOutputFileName(path(u"alle.pdf"_s));
    Q_EMIT preview->printRequested(); // as after the choice of a printer
    preview->reject();
    QVERIFY(dialog("progressDialog"));
    QTRY_VERIFY(!dialog("progressDialog"));
    QCOMPARE(MvTestFiles::contentOf(path(u"alle.pdf"_s)).count("/Type /Page\n"), 12);

    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path(u"druck.pdf"_s));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 4);
    flow->paint(&printer);
    QCOMPARE(MvTestFiles::contentOf(path(u"druck.pdf"_s)).count("/Type /Page\n"), 3);
}

void tst_StudioOutput::cancelledPreview()
{
    auto *flow = window()->findChild<MvPrintFlow *>();
    flow->showPreview();
    auto *pages = flow->findChild<MvPrintPages *>();
    QVERIFY(pages);
    click(dialog("progressDialog"), "progressCancel");
    Q_EMIT pages->ready(); // the last page came in the same moment
    QVERIFY(!window()->findChild<MvPrintPreview *>());
    QTRY_VERIFY(!dialog("progressDialog"));
    flow->showPreview(); // and once more
    QTRY_VERIFY(dialog<MvPrintPreview>("printPreview") && dialog<MvPrintPreview>("printPreview")->isVisible());
    dialog<MvPrintPreview>("printPreview")->reject();
}

MV_WIDGET_TEST_MAIN(tst_StudioOutput)
#include "tst_StudioOutput.moc"
