// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintPreview.h"

#include "common/MvStudioMessage.h"
#include "flows/MvPrintFindingList.h"
#include "flows/MvPrintWatch.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvPrintPreview::MvPrintPreview(const std::shared_ptr<QPrinter> &printer, const MvPrintPlacement::Extent &extent,
                               const Paint &paint, MvPrintWatch *watch, QWidget *parent)
    : QDialog(parent)
    , m_printer(printer)
    , m_extent(extent)
    , m_preview(new QPrintPreviewWidget(printer.get(), this))
    , m_watch(watch)
    , m_page(new QLabel(this))
    , m_size(new QComboBox(this))
    , m_sizeRow(new QWidget(this))
    , m_sizeNote(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"printPreview"_s);
    setWindowTitle(tr("Druckvorschau"));
    m_page->setObjectName(u"previewPage"_s);
    connect(m_preview, &QPrintPreviewWidget::paintRequested, this, [this, paint](QPrinter *target) {
        paint(target, {*m_printer, m_extent, printSize()});
    });
    connect(m_preview, &QPrintPreviewWidget::previewChanged, this, &MvPrintPreview::update);

    const bool hasPrinter = printer->outputFormat() == QPrinter::NativeFormat;
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *print =
        buttons->addButton(hasPrinter ? tr("&Drucken …") : tr("Als &PDF exportieren …"), QDialogButtonBox::AcceptRole);
    print->setObjectName(u"previewPrint"_s);
    print->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(print, &QPushButton::clicked, this, [this, hasPrinter] {
        if (hasPrinter) {
            askForPrinter();
            return;
        }
        accept();
        Q_EMIT pdfRequested();
    });

    auto *column = new QVBoxLayout(this);
    column->addWidget(createToolBar());
    column->addWidget(m_preview, 1);
    auto *row = new QHBoxLayout;
    row->addWidget(createPrinterRow());
    row->addWidget(createSizeRow(), 1);
    column->addLayout(row);
    addFindings(column);
    column->addWidget(buttons);
    m_preview->fitInView();
}

MvPrintPreview::~MvPrintPreview()
{
    delete m_preview; // before its printer
}

/// Only where there are any: the pages need the room.
void MvPrintPreview::addFindings(QVBoxLayout *column)
{
    constexpr int lines = 4;
    auto *summary = new QLabel(this);
    summary->setObjectName(u"previewSummary"_s);
    auto *list = new MvPrintFindingList(this);
    list->setFixedHeight(lines * (fontMetrics().lineSpacing() + 6));
    summary->setBuddy(list);
    column->addWidget(summary);
    column->addWidget(list);
    const auto look = [this, summary, list] {
        list->setFindings(m_watch->findings(), m_watch->isComplete());
        summary->setText(MvPrintFindingList::summary(list->findings().size()));
        for (QWidget *widget : std::initializer_list<QWidget *>{summary, list})
            widget->setVisible(!list->findings().isEmpty());
    };
    connect(m_watch, &MvPrintWatch::completed, this, look);
    connect(list, &MvPrintFindingList::currentChanged, this,
            [this](const MvPrintFinding &finding) { showPage(finding.page + 1); });
    connect(list, &MvPrintFindingList::placeWanted, this, [this](const MvPrintFinding &finding) {
        const MvPrintFinding place = finding; // NOLINT(performance-unnecessary-copy-initialization): its list may go
        reject();
        Q_EMIT placeWanted(place);
    });
    look();
    m_watch->hurry();
}

/// Only where there are several.
QWidget *MvPrintPreview::createPrinterRow()
{
    auto *row = new QWidget(this);
    auto *names = new QComboBox(row);
    names->setObjectName(u"previewPrinter"_s);
    if (m_printer->outputFormat() == QPrinter::NativeFormat)
        names->addItems(QPrinterInfo::availablePrinterNames());
    names->setCurrentText(m_printer->printerName());
    auto *label = new QLabel(tr("D&rucker:"), row);
    label->setBuddy(names);
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    line->addWidget(label);
    line->addWidget(names);
    row->setVisible(names->count() > 1);
    connect(names, &QComboBox::currentTextChanged, this, [this](const QString &name) {
        m_printer->setPrinterName(name);
        MvPrintPlacement::setPaper(m_printer.get(), m_extent.page); // of which another printer knows nothing
        followPrinter();
    });
    return row;
}

/// Only where the printer's margins or its paper leave a choice.
QWidget *MvPrintPreview::createSizeRow()
{
    m_size->setObjectName(u"previewSize"_s);
    m_sizeNote->setObjectName(u"previewSizeNote"_s);
    m_sizeNote->setWordWrap(true);
    m_size->addItem({}, int(MvPrintPlacement::Size::Fitting));
    m_size->addItem(tr("Originalgröße"), int(MvPrintPlacement::Size::Original));
    auto *label = new QLabel(tr("&Größe:"), m_sizeRow);
    label->setBuddy(m_size);
    auto *line = new QHBoxLayout(m_sizeRow);
    line->setContentsMargins({});
    line->addWidget(label);
    line->addWidget(m_size);
    line->addWidget(m_sizeNote, 1);
    connect(m_size, &QComboBox::currentIndexChanged, this, [this] {
        tellSize();
        m_preview->updatePreview();
    });
    tellSize();
    return m_sizeRow;
}

void MvPrintPreview::followPrinter()
{
    tellSize();
    m_preview->updatePreview();
}

void MvPrintPreview::tellSize()
{
    const int percent = MvPrintPlacement(*m_printer, m_extent, MvPrintPlacement::Size::Fitting).percent();
    m_size->setItemText(0, tr("Eingepasst (%1 %)").arg(percent));
    m_sizeRow->setVisible(percent < 100);
    const QString margin = QLocale().toString(MvPrintPlacement::whiteMargin(*m_printer), 'f', 1);
    m_sizeNote->setText(printSize() == MvPrintPlacement::Size::Fitting
                            ? tr("Verkleinert, damit Texte und Tage nicht dort stehen, wo der Drucker nichts druckt "
                                 "(bis %1 mm vom Rand).")
                                  .arg(margin)
                            : tr("Was näher als %1 mm am Rand steht, kann fehlen.").arg(margin));
}

MvPrintPlacement::Size MvPrintPreview::printSize() const
{
    return MvPrintPlacement::Size(m_size->currentData().toInt());
}

int MvPrintPreview::pageCount() const
{
    return m_preview->pageCount();
}

QAction *MvPrintPreview::addAction(QToolBar *bar, const QString &name, const QString &text,
                                   const QList<QKeySequence> &keys)
{
    QAction *action = bar->addAction(MvIconRegistry::instance().icon(u"ico_studio_"_s + name), text);
    action->setObjectName(u"preview_"_s + name);
    action->setShortcuts(keys);
    return action;
}

QToolBar *MvPrintPreview::createToolBar()
{
    auto *bar = new QToolBar(this);
    m_previous = addAction(bar, u"page_previous"_s, tr("Vorige Seite"), {Qt::Key_PageUp});
    m_next = addAction(bar, u"page_next"_s, tr("Nächste Seite"), {Qt::Key_PageDown});
    connect(m_previous, &QAction::triggered, this, [this] { showPage(m_preview->currentPage() - 1); });
    connect(m_next, &QAction::triggered, this, [this] { showPage(m_preview->currentPage() + 1); });
    bar->addWidget(m_page);
    bar->addSeparator();
    connect(addAction(bar, u"zoom_in"_s, tr("Größer"), {QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal}),
            &QAction::triggered, m_preview, [this] { m_preview->zoomIn(); });
    connect(addAction(bar, u"zoom_out"_s, tr("Kleiner"), {QKeySequence::ZoomOut}), &QAction::triggered, m_preview,
            [this] { m_preview->zoomOut(); });
    connect(addAction(bar, u"zoom_fit"_s, tr("Ganze Seite"), {Qt::CTRL | Qt::Key_0}), &QAction::triggered, m_preview,
            &QPrintPreviewWidget::fitInView);
    return bar;
}

void MvPrintPreview::showPage(int page)
{
    m_preview->setCurrentPage(page);
    update();
}

void MvPrintPreview::update()
{
    const int page = m_preview->currentPage();
    m_page->setText(tr("Seite %1 von %2").arg(page).arg(pageCount()));
    m_previous->setEnabled(page > 1);
    m_next->setEnabled(page < pageCount());
}

void MvPrintPreview::askForPrinter()
{
    auto *dialog = new QPrintDialog(m_printer.get(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setMinMax(1, pageCount());
    connect(dialog, &QDialog::accepted, this, [this] {
        accept();
        Q_EMIT printRequested();
    });
    dialog->open();
}
