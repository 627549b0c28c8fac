// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvExportDialog.h"

#include "MvGUIWidgets/MvSpinBox.h"
#include "MvProject/MvExportTarget.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPictureExporter.h"
#include "MvProject/MvSheetPlan.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"
#include "flows/MvPagePreview.h"
#include "flows/MvPressChoice.h"
#include "flows/MvPrintFindingList.h"
#include "flows/MvPrintWatch.h"
#include "flows/MvSheetChoice.h"

#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

enum PageChoice {
    AllPages,
    CurrentPage,
    SomePages,
};

constexpr int defaultDpi = 300;
constexpr double tenths = 10.0;    // of a millimetre
constexpr double mostBleed = 20.0; // millimetres

QString withSuffix(const QString &path, const QString &suffix)
{
    return path.endsWith(suffix, Qt::CaseInsensitive) || path.isEmpty() ? path : path + suffix;
}

QLabel *labelFor(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text, buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

} // namespace

MvExportDialog::MvExportDialog(MvExportOptions::Kind kind, const MvCalendarDocument &document, int currentPage,
                               const QString &folder, const QString &name, MvPrintWatch *watch, QWidget *parent)
    : QDialog(parent)
    , m_kind(kind)
    , m_document(document)
    , m_currentPage(currentPage)
    , m_watch(watch)
    , m_preview(new MvPagePreview(this))
    , m_findings(new MvPrintFindingList(this))
    , m_summary(new QLabel(this))
    , m_target(new QLineEdit(this))
    , m_pages(new QComboBox(this))
    , m_pageText(new QLineEdit(this))
    , m_message(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"exportDialog"_s);
    setWindowTitle(isPdf() ? tr("Als PDF exportieren") : tr("Als Bilder exportieren"));
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow); // names get the room, numbers need none
    addTarget(form, folder, name);
    addPages(form);
    if (isPdf()) {
        addPress(form);
        addBleed(form);
        addSheets(form);
    } else {
        addResolution(form);
    }

    m_message->setObjectName(u"exportMessage"_s);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    m_message->setMinimumHeight(2 * m_message->fontMetrics().lineSpacing());
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_export = buttons->button(QDialogButtonBox::Ok);
    m_export->setText(tr("&Exportieren"));
    m_export->setObjectName(u"exportButton"_s);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *left = new QVBoxLayout;
    left->addLayout(form);
    left->addWidget(m_message);
    left->addStretch(1);
    auto *row = new QHBoxLayout;
    row->addLayout(left, 3);
    row->addWidget(m_preview, 2);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row, 3);
    column->addWidget(createFindings(), 2);
    column->addWidget(buttons);
    const int letters = fontMetrics().averageCharWidth();
    resize(letters * 140, letters * 86);
    validate();
    m_preview->showPage(currentPage);
}

QWidget *MvExportDialog::createFindings()
{
    auto *box = new QWidget(this);
    m_summary->setObjectName(u"exportSummary"_s);
    m_summary->setWordWrap(true);
    m_summary->setBuddy(m_findings);
    auto *go = new QPushButton(tr("&Zur Stelle gehen"), box);
    go->setObjectName(u"exportGoTo"_s);
    go->setAutoDefault(false);
    go->setToolTip(tr("Dieses Fenster schließen und zeigen, was die gewählte Zeile meint"));
    connect(go, &QPushButton::clicked, this, [this] {
        if (m_findings->current())
            goTo(*m_findings->current());
    });
    connect(m_findings, &MvPrintFindingList::placeWanted, this, &MvExportDialog::goTo);
    connect(m_findings, &MvPrintFindingList::currentChanged, this,
            [this](const MvPrintFinding &finding) { m_preview->mark(finding.page, finding.rect); });
    auto *head = new QHBoxLayout;
    head->addWidget(m_summary, 1);
    head->addWidget(go, 0, Qt::AlignBottom);
    auto *column = new QVBoxLayout(box);
    column->setContentsMargins({});
    column->addLayout(head);
    column->addWidget(m_findings, 1);
    connect(m_watch, &MvPrintWatch::completed, this, &MvExportDialog::showFindings);
    m_watch->hurry();
    return box;
}

/// Those of the pages that are to be exported.
void MvExportDialog::showFindings()
{
    const bool isComplete = m_watch->isComplete();
    m_findings->setFindings(m_watch->findings(pages().numbers), isComplete);
    m_summary->setText(isComplete ? MvPrintFindingList::summary(m_findings->findings().size())
                                  : tr("Die Seiten werden geprüft …"));
    if (auto *go = findChild<QPushButton *>(u"exportGoTo"_s))
        go->setEnabled(!m_findings->findings().isEmpty());
}

void MvExportDialog::goTo(const MvPrintFinding &finding)
{
    const MvPrintFinding place = finding; // NOLINT(performance-unnecessary-copy-initialization): its list goes
    reject();
    Q_EMIT placeWanted(place);
}

bool MvExportDialog::hasToldEverything() const
{
    return m_watch->isComplete() && m_findings->findings() == m_watch->findings(pages().numbers);
}

void MvExportDialog::addTarget(QFormLayout *form, const QString &folder, const QString &name)
{
    m_target->setObjectName(u"exportTarget"_s);
    const QDir dir(folder);
    m_target->setText(QDir::toNativeSeparators(isPdf() ? dir.filePath(name + u".pdf"_s) : dir.path()));
    auto *browseButton = new QPushButton(tr("D&urchsuchen …"), this);
    browseButton->setObjectName(u"exportBrowse"_s);
    browseButton->setAutoDefault(false);
    connect(browseButton, &QPushButton::clicked, this, &MvExportDialog::browse);
    auto *row = new QHBoxLayout;
    row->addWidget(m_target, 1);
    row->addWidget(browseButton);
    form->addRow(labelFor(isPdf() ? tr("&Datei:") : tr("&Ordner:"), m_target), row);
    setTabOrder(m_target, browseButton);
    connect(m_target, &QLineEdit::textChanged, this, &MvExportDialog::validate);
    if (isPdf())
        return;
    const bool isWithinAYear = m_document.range().monthCount() <= 12;
    m_pattern =
        new QLineEdit(MvFileNamePattern::escaped(name) + (isWithinAYear ? u"-%m.png"_s : u"-%y-%m.png"_s), this);
    m_pattern->setObjectName(u"exportPattern"_s);
    m_pattern->setToolTip(tr("%m Monat, %y Jahr, %n Nummer der Seite"));
    form->addRow(labelFor(tr("Datei&namen:"), m_pattern), m_pattern);
    setTabOrder(browseButton, m_pattern);
    connect(m_pattern, &QLineEdit::textChanged, this, &MvExportDialog::validate);
}

void MvExportDialog::addPages(QFormLayout *form)
{
    m_pages->setObjectName(u"exportPages"_s);
    m_pages->addItem(tr("Alle Seiten (%1)").arg(m_document.pages().size()), AllPages);
    m_pages->addItem(tr("Gezeigte Seite (%1)").arg(m_currentPage + 1), CurrentPage);
    m_pages->addItem(tr("Auswahl:"), SomePages);
    m_pageText->setObjectName(u"exportPageText"_s);
    m_pageText->setAccessibleName(tr("Seiten, die exportiert werden"));
    m_pageText->setPlaceholderText(tr("zum Beispiel 1-3, 5"));
    m_pageText->setEnabled(false);
    auto *row = new QHBoxLayout;
    row->addWidget(m_pages);
    row->addWidget(m_pageText, 1);
    form->addRow(labelFor(tr("&Seiten:"), m_pages), row);
    connect(m_pages, &QComboBox::currentIndexChanged, this, [this] {
        m_pageText->setEnabled(m_pages->currentData() == SomePages);
        if (m_pageText->isEnabled())
            m_pageText->setFocus();
        validate();
    });
    connect(m_pageText, &QLineEdit::textChanged, this, &MvExportDialog::validate);
}

void MvExportDialog::addResolution(QFormLayout *form)
{
    m_dpi = new MvSpinBox(this);
    m_dpi->setObjectName(u"exportDpi"_s);
    m_dpi->setKeyboardTracking(true); // the size in pixels follows while typing
    m_dpi->setRange(MvPictureExporter::minimumDpi, MvPictureExporter::maximumDpi);
    m_dpi->setSuffix(tr(" dpi"));
    m_dpi->setValue(MvStudioSettings::text(u"export/dpi"_s, QString::number(defaultDpi)).toInt());
    form->addRow(labelFor(tr("&Auflösung:"), m_dpi), m_dpi);
    connect(m_dpi, &MvSpinBox::valueChanged, this, &MvExportDialog::validate);
}

void MvExportDialog::addBleed(QFormLayout *form)
{
    m_bleed = new QDoubleSpinBox(this);
    m_bleed->setObjectName(u"exportBleed"_s);
    m_bleed->setRange(0.0, mostBleed);
    m_bleed->setDecimals(1);
    m_bleed->setSuffix(tr(" mm"));
    m_bleed->setValue(m_document.format().bleed() / tenths);
    m_bleed->setToolTip(
        tr("Was an jeder Kante über das fertige Blatt hinaus gedruckt und abgeschnitten wird; Druckereien "
           "verlangen meist 3 mm"));
    form->addRow(labelFor(tr("&Beschnitt:"), m_bleed), m_bleed);
    connect(m_bleed, &QDoubleSpinBox::valueChanged, this, &MvExportDialog::validate);
}

void MvExportDialog::addPress(QFormLayout *form)
{
    m_press = new MvPressChoice(this);
    form->addRow(labelFor(tr("&Wofür:"), m_press->profileBox()), m_press);
    connect(m_press, &MvPressChoice::changed, this, [this] {
        if (!m_press->profile().isEmpty() && m_bleed->value() == 0.0)
            m_bleed->setValue(MvPageFormat::printShopBleed / tenths);
    });
    connect(this, &QDialog::accepted, m_press, &MvPressChoice::remember);
}

/// Not for a print shop: those lay out sheets of their own.
void MvExportDialog::addSheets(QFormLayout *form)
{
    m_sheets = new MvSheetChoice(this);
    form->addRow(labelFor(tr("B&lätter:"), m_sheets->kindBox()), m_sheets);
    const auto follow = [this] {
        m_sheets->setAvailable(m_press->profile().isEmpty(),
                               tr("nicht für eine Druckerei, die ihre Bögen selbst anlegt"));
        validate();
    };
    connect(m_press, &MvPressChoice::changed, this, follow);
    connect(m_sheets, &MvSheetChoice::changed, this, &MvExportDialog::validate);
    connect(this, &QDialog::accepted, m_sheets, &MvSheetChoice::remember);
    follow();
}

void MvExportDialog::browse()
{
    auto *dialog = new QFileDialog(this, windowTitle(), m_target->text());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"exportFileDialog"_s);
    dialog->setAcceptMode(isPdf() ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (isPdf()) {
        dialog->setNameFilter(tr("PDF (*.pdf)"));
        dialog->setDefaultSuffix(u"pdf"_s);
        dialog->selectFile(QFileInfo(m_target->text()).fileName());
    } else {
        dialog->setFileMode(QFileDialog::Directory);
    }
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &path) { m_target->setText(QDir::toNativeSeparators(path)); });
    dialog->open();
}

QString MvExportDialog::target() const
{
    const QString path = QDir::fromNativeSeparators(m_target->text().trimmed());
    if (path.isEmpty())
        return {};
    if (isPdf())
        return QFileInfo(withSuffix(path, u".pdf"_s)).absoluteFilePath();
    const QString pattern = withSuffix(m_pattern->text().trimmed(), u".png"_s);
    return pattern.isEmpty() ? QString() : QFileInfo(QDir(path), pattern).absoluteFilePath();
}

MvPageRange::Pages MvExportDialog::pages() const
{
    const int count = int(m_document.pages().size());
    if (m_pages->currentData() == CurrentPage)
        return {{}, {m_currentPage}};
    if (m_pages->currentData() == AllPages)
        return MvPageRange::parse({}, count);
    if (m_pageText->text().trimmed().isEmpty())
        return {{tr("Welche Seiten? Schreiben Sie zum Beispiel 1-3, 5."), {}}, {}};
    return MvPageRange::parse(m_pageText->text(), count);
}

MvOutcome MvExportDialog::checkTarget() const
{
    const QString path = target();
    if (path.isEmpty())
        return {isPdf() ? tr("Wie soll die Datei heißen?") : tr("Wohin sollen die Bilder, und wie sollen sie heißen?"),
                {}};
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir())
        return {tr("Den Ordner %1 gibt es nicht.").arg(QDir::toNativeSeparators(folder.filePath())), {}};
    if (!folder.isWritable())
        return {tr("In den Ordner %1 dürfen Sie nicht schreiben; wählen Sie einen anderen.")
                    .arg(QDir::toNativeSeparators(folder.filePath())),
                {}};
    if (QFileInfo(path).isDir())
        return {tr("%1 ist ein Ordner.").arg(QDir::toNativeSeparators(path)), {}};
    return {};
}

MvOutcome MvExportDialog::check() const
{
    const MvExportOptions wanted = options();
    MvExportTarget files(wanted.target);
    files.setSheets(wanted.sheets);
    const MvPageRange::Pages shown = pages();
    const MvPageSource source = m_document.pageSource().part(shown.numbers);
    const MvFileNamePattern::Paths names = files.files(source);
    for (const MvOutcome &checked : {checkTarget(), MvOutcome(shown), MvOutcome(names),
                                     files.checkSize(m_document.format(), wanted.dpi), files.checkSheets(source)}) {
        if (!checked.isOk())
            return checked;
    }
    return {{}, notes(names.paths)};
}

QStringList MvExportDialog::notes(const QStringList &files) const
{
    QStringList lines;
    if (m_dpi) {
        const QSize size = MvPictureExporter::pixelSize(m_document.format(), m_dpi->value());
        lines.append(tr("Jedes Bild wird %1 × %2 Pixel groß.").arg(size.width()).arg(size.height()));
    }
    if (const MvExportOptions wanted = options(); wanted.sheets.areSheets())
        lines.append(
            MvSheetPlan(wanted.sheets, m_document.format().trimSize(), int(wanted.pages.size())).description());
    const int existing =
        int(std::count_if(files.begin(), files.end(), [](const QString &file) { return QFileInfo::exists(file); }));
    if (existing > 0)
        lines.append(isPdf() ? tr("Die Datei gibt es schon; sie wird ersetzt.")
                             : tr("Schon vorhanden und ersetzt werden: %n Dateien.", nullptr, existing));
    return lines;
}

void MvExportDialog::validate()
{
    if (!m_export)
        return; // still being built
    const MvOutcome checked = check();
    m_message->setText(checked.isOk() ? checked.notes.join(u' ') : checked.error);
    m_export->setEnabled(checked.isOk());
    if (pages().isOk())
        m_preview->setExport(m_document, options());
    showFindings();
}

MvExportOptions MvExportDialog::options() const
{
    MvExportOptions options;
    options.kind = m_kind;
    options.target = target();
    options.pages = pages().numbers;
    options.dpi = m_dpi ? m_dpi->value() : defaultDpi;
    options.sheets = m_sheets ? m_sheets->settings() : MvSheetSettings();
    if (m_press) {
        options.press = m_press->profile();
        options.forPress = m_press->settings();
    }
    options.bleed = m_bleed ? std::round(m_bleed->value() * tenths) : m_document.format().bleed();
    return options;
}

void MvExportDialog::remember(const MvExportOptions &options)
{
    if (options.kind == MvExportOptions::Kind::Png)
        MvStudioSettings::setText(u"export/dpi"_s, QString::number(options.dpi));
    MvStudioSettings::setFolder(u"export"_s, QFileInfo(options.target).absolutePath());
}
