// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryTableDialog.h"

#include "MvCore/MvRegularFile.h"
#include "MvPaint/MvPrintableText.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

using Table = MvEntryTable;

constexpr qsizetype shownRows = 12;
constexpr qsizetype looked = 512LL * 1024; // bytes that are counted while somebody chooses
constexpr int mostNamed = 3;
constexpr int notChosen = -1;

QList<std::pair<Table::Column, QString>> columns()
{
    return {{Table::Ignored, MvEntryTableDialog::tr("(auslassen)")},
            {Table::Name, MvEntryTableDialog::tr("Name")},
            {Table::Date, MvEntryTableDialog::tr("Datum")},
            {Table::EndDate, MvEntryTableDialog::tr("Bis")},
            {Table::Time, MvEntryTableDialog::tr("Uhrzeit")},
            {Table::EndTime, MvEntryTableDialog::tr("Endet um")},
            {Table::WholeDay, MvEntryTableDialog::tr("Ganztägig")},
            {Table::Repetition, MvEntryTableDialog::tr("Wiederholung")},
            {Table::Exceptions, MvEntryTableDialog::tr("Ausnahmen")},
            {Table::ExtraDates, MvEntryTableDialog::tr("Zusatztermine")},
            {Table::LeapDay, MvEntryTableDialog::tr("29. Februar")},
            {Table::Groups, MvEntryTableDialog::tr("Gruppen")},
            {Table::Uuid, MvEntryTableDialog::tr("Kennung")}};
}

/// What the columns are, with encoding and separator as they are chosen: of the same cells in a form of our own.
Table::Format guessedColumns(const QByteArray &bytes, const Table::Format &chosen)
{
    constexpr qsizetype most = 500;
    QString text;
    qsizetype width = 0;
    for (const Table::Row &row : MvEntryTable::rows(bytes, chosen, most)) {
        width = qMax(width, row.cells.size());
        for (const QString &cell : row.cells)
            text += cell.simplified().remove(u'"') + u'\t';
        text += u'\n';
    }
    Table::Format format = MvEntryTable::guess(text.toUtf8());
    format.columns.resize(width, Table::Ignored);
    format.encoding = chosen.encoding;
    format.separator = chosen.separator;
    return format;
}

/// Whole lines of the beginning.
QByteArray beginningOf(const QByteArray &bytes)
{
    return bytes.size() <= looked ? bytes : bytes.left(bytes.lastIndexOf('\n', looked) + 1);
}

} // namespace

MvEntryTableDialog::MvEntryTableDialog(const QByteArray &bytes, const QString &name, QWidget *parent)
    : QDialog(parent)
    , m_bytes(bytes)
    , m_format(MvEntryTable::guess(bytes))
    , m_table(new QTableWidget(this))
    , m_result(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"entryTableDialog"_s);
    setWindowTitle(tr("Tabelle übernehmen"));
    auto *text = new QLabel(tr("So wird „%1“ gelesen. Stimmt etwas nicht, wählen Sie es hier anders.")
                                .arg(MvPrintableText::inShort(name, 80)),
                            this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    m_table->setObjectName(u"tablePreview"_s);
    m_table->setAccessibleName(tr("Die ersten Zeilen der Tabelle"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_result->setObjectName(u"tableResult"_s);
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    m_accept = buttons->addButton(tr("Übernehmen"), QDialogButtonBox::AcceptRole);
    m_accept->setObjectName(u"takeTableButton"_s);
    m_accept->setDefault(true);
    buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole)->setObjectName(u"cancelButton"_s);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addLayout(createChoices());
    layout->addWidget(m_table, 1);
    layout->addWidget(m_result);
    layout->addWidget(buttons);
    fillChoices();
    showTable();
    if (m_format.isOrderOpen)
        m_order->setFocus(); // what is to be answered
    resize(760, 520);
}

void MvEntryTableDialog::ask(const QFileInfo &file, QWidget *window, QObject *asker, const Use &use)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    auto *dialog =
        new MvEntryTableDialog(opened.isOk() ? opened.file->readAll() : QByteArray(), file.fileName(), window);
    connect(dialog, &QDialog::finished, asker,
            [dialog, use](int result) { use(result == Accepted ? std::optional(dialog->reading()) : std::nullopt); });
    dialog->open();
}

// ---- choices

QComboBox *MvEntryTableDialog::addCombo(const char *name, const QString &label, QLayout *layout)
{
    auto *combo = new QComboBox(this);
    combo->setObjectName(QLatin1StringView(name));
    auto *text = new QLabel(label, this);
    text->setBuddy(combo);
    auto *column = new QVBoxLayout;
    column->addWidget(text);
    column->addWidget(combo);
    static_cast<QBoxLayout *>(layout)->addLayout(column);
    return combo;
}

QLayout *MvEntryTableDialog::createChoices()
{
    auto *row = new QHBoxLayout;
    m_separator = addCombo("separatorCombo", tr("Spalten trennt"), row);
    for (const auto &[sign, name] : {std::pair(u';', tr("Semikolon")), std::pair(u',', tr("Komma")),
                                     std::pair(u'\t', tr("Tabulator")), std::pair(u'|', tr("Senkrechter Strich"))})
        m_separator->addItem(name, QChar(sign));
    m_encoding = addCombo("encodingCombo", tr("Zeichen"), row);
    m_encoding->addItem(tr("Unicode (UTF-8)"), u"UTF-8"_s);
    m_encoding->addItem(tr("Westeuropäisch"), u"Windows-1252"_s);
    m_encoding->addItem(tr("Unicode (UTF-16)"), u"UTF-16"_s);
    m_order = addCombo("orderCombo", tr("Ein Datum beginnt mit"), row);
    m_order->addItem(tr("dem Tag"), int(Table::DayMonthYear));
    m_order->addItem(tr("dem Monat"), int(Table::MonthDayYear));
    m_order->setPlaceholderText(tr("Bitte wählen"));
    row->addStretch();
    m_headings = new QCheckBox(tr("Die erste Zeile sind Überschriften"), this);
    m_headings->setObjectName(u"headingsBox"_s);
    m_yearly = new QCheckBox(tr("Jedes Jahr, wo nichts anderes steht"), this);
    m_yearly->setObjectName(u"yearlyBox"_s);
    auto *boxes = new QHBoxLayout;
    boxes->addWidget(m_headings);
    boxes->addWidget(m_yearly);
    boxes->addStretch();
    auto *layout = new QVBoxLayout;
    layout->addLayout(row);
    layout->addLayout(boxes);
    connect(m_separator, &QComboBox::activated, this, &MvEntryTableDialog::onEncodingOrSeparator);
    connect(m_encoding, &QComboBox::activated, this, &MvEntryTableDialog::onEncodingOrSeparator);
    connect(m_order, &QComboBox::activated, this, [this] {
        m_format.order = Table::DateOrder(m_order->currentData().toInt());
        m_format.isOrderOpen = false;
        showResult();
    });
    connect(m_headings, &QCheckBox::clicked, this, [this](bool on) {
        m_format.hasHeadings = on;
        showResult();
    });
    connect(m_yearly, &QCheckBox::clicked, this, [this](bool on) {
        m_format.isYearly = on;
        showResult();
    });
    return layout;
}

void MvEntryTableDialog::fillChoices()
{
    if (m_encoding->findData(m_format.encoding) < 0)
        m_encoding->addItem(m_format.encoding, m_format.encoding);
    m_encoding->setCurrentIndex(m_encoding->findData(m_format.encoding));
    m_separator->setCurrentIndex(m_separator->findData(m_format.separator));
    m_order->setCurrentIndex(m_format.isOrderOpen ? notChosen : m_order->findData(int(m_format.order)));
    m_headings->setChecked(m_format.hasHeadings);
    m_yearly->setChecked(m_format.isYearly);
}

/// Other columns: what they are is guessed anew, and stays where it cannot be.
void MvEntryTableDialog::onEncodingOrSeparator()
{
    m_format.encoding = m_encoding->currentData().toString();
    m_format.separator = m_separator->currentData().toChar();
    const bool isOrderOpen = m_format.isOrderOpen;
    m_format = guessedColumns(m_bytes, m_format);
    m_format.isOrderOpen = m_format.isOrderOpen && (isOrderOpen || m_order->currentIndex() == notChosen);
    fillChoices();
    showTable();
}

// ---- table

void MvEntryTableDialog::showTable()
{
    m_rows = MvEntryTable::rows(m_bytes, m_format, shownRows);
    int width = int(m_format.columns.size());
    for (const Table::Row &row : std::as_const(m_rows))
        width = qMax(width, int(row.cells.size()));
    m_format.columns.resize(width, Table::Ignored);
    m_table->clear();
    m_table->setRowCount(int(m_rows.size()) + 1);
    m_table->setColumnCount(width);
    m_table->horizontalHeader()->hide();
    QStringList lines{QString()};
    for (const Table::Row &row : std::as_const(m_rows))
        lines.append(QString::number(row.line));
    m_table->setVerticalHeaderLabels(lines);
    for (int column = 0; column < width; ++column) {
        addColumnChooser(column);
        for (int row = 0; row < m_rows.size(); ++row)
            m_table->setItem(row + 1, column,
                             new QTableWidgetItem(MvPrintableText::inShort(m_rows.at(row).cells.value(column))));
    }
    m_table->resizeColumnsToContents();
    constexpr int widest = 220;
    for (int column = 0; column < width; ++column)
        m_table->setColumnWidth(
            column, qBound(m_table->cellWidget(0, column)->sizeHint().width(), m_table->columnWidth(column), widest));
    showResult();
}

void MvEntryTableDialog::addColumnChooser(int column)
{
    auto *combo = new QComboBox(m_table);
    combo->setObjectName(u"columnCombo%1"_s.arg(column));
    auto *label = new QLabel(tr("Spalte %1").arg(column + 1), combo); // for a screen reader
    label->setBuddy(combo);
    label->hide();
    for (const auto &[kind, name] : columns())
        combo->addItem(name, int(kind));
    combo->setCurrentIndex(qMax(0, combo->findData(int(m_format.columns.at(column)))));
    connect(combo, &QComboBox::activated, this, [this, combo, column] {
        const auto chosen = Table::Column(combo->currentData().toInt());
        for (int other = 0; other < m_format.columns.size(); ++other) { // each is there once
            if (other == column || chosen == Table::Ignored || m_format.columns.at(other) != chosen)
                continue;
            m_format.columns[other] = Table::Ignored;
            if (auto *box = qobject_cast<QComboBox *>(m_table->cellWidget(0, other)))
                box->setCurrentIndex(0);
        }
        m_format.columns[column] = chosen;
        showResult();
    });
    m_table->setCellWidget(0, column, combo);
}

/// A date that can be read in two ways.
QString MvEntryTableDialog::example() const
{
    const qsizetype column = m_format.columns.indexOf(Table::Date);
    for (const Table::Row &row : m_rows) {
        const QString text = row.cells.value(column);
        Table::Format one = m_format;
        one.columns = {Table::Name, Table::Date};
        one.separator = u'\t';
        one.encoding = u"UTF-8"_s;
        one.hasHeadings = false;
        const QByteArray bytes = "x\t" + text.toUtf8();
        one.order = Table::DayMonthYear;
        const MvCalendarEventList dayFirst = MvEntryTable::read(bytes, one).events;
        one.order = Table::MonthDayYear;
        const MvCalendarEventList monthFirst = MvEntryTable::read(bytes, one).events;
        if (!dayFirst.isEmpty() && !monthFirst.isEmpty() &&
            dayFirst.first().dateTime() != monthFirst.first().dateTime())
            return text;
    }
    return {};
}

void MvEntryTableDialog::showResult()
{
    const MvEntryReading reading = MvEntryTable::read(beginningOf(m_bytes), m_format);
    QHash<int, QString> reasons;
    for (const MvCalendarEventFile::Skipped &skipped : reading.skipped)
        reasons.insert(skipped.line, skipped.reason);
    for (int row = 0; row < m_rows.size(); ++row) {
        const bool isHeading = m_format.hasHeadings && row == 0;
        const QString reason = reasons.value(m_rows.at(row).line);
        for (int column = 0; column < m_table->columnCount(); ++column) {
            QTableWidgetItem *item = m_table->item(row + 1, column);
            QFont font = m_table->font();
            font.setBold(isHeading);
            font.setStrikeOut(!isHeading && !reason.isEmpty());
            item->setFont(font);
            item->setToolTip(isHeading ? QString() : reason);
        }
    }
    QStringList parts;
    if (m_format.isOrderOpen)
        parts.append(tr("„%1“ lässt sich auf zwei Arten lesen: Wählen Sie, womit ein Datum beginnt.").arg(example()));
    if (!reading.isOk())
        parts.append(reading.error);
    else
        parts.append(m_bytes.size() > looked
                         ? tr("%n Einträge am Anfang der Datei", nullptr, int(reading.events.size()))
                         : tr("%n Einträge", nullptr, int(reading.events.size())));
    if (reading.isOk() && !reading.skipped.isEmpty())
        parts.append(tr("%n Zeilen werden ausgelassen:", nullptr, int(reading.skipped.size())) + u' ' +
                     MvCalendarEventFile::describe(reading.skipped, mostNamed));
    m_result->setText(parts.join(u'\n'));
    m_accept->setEnabled(reading.isOk() && !reading.events.isEmpty() && !m_format.isOrderOpen);
}
