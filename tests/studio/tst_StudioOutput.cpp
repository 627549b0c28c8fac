// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvStudioTest.h"
#include "flows/MvPrintFlow.h"
#include "flows/MvPrintPages.h"
#include "flows/MvPrintPreview.h"

#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

/// What leaves the studio: the dialog for exports and what it refuses, the print preview and its printer.
class tst_StudioOutput : public MvStudioTest
{
    Q_OBJECT

private Q_SLOTS:
    void exportErrors();
    void print();
    void cancelledPreview();
};

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
    QFile existing(path(u"k-05.png"_s));
    QVERIFY(existing.open(QIODevice::WriteOnly));
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
    QFile all(path(u"alle.pdf"_s));
    QVERIFY(all.open(QIODevice::ReadOnly));
    QCOMPARE(all.readAll().count("/Type /Page\n"), 12);

    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path(u"druck.pdf"_s));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 4);
    flow->paint(&printer);
    QFile file(path(u"druck.pdf"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("/Type /Page\n"), 3);
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
