// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryTable.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QByteArray>
#include <QDialog>
#include <QFileInfo>
#include <QList>

#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

/// Shows how a table of entries is understood, over its first rows: separator, encoding, order of dates, headings and
/// what each column is. Whatever is chosen shows at once, with how many entries come of it and the rows that give none.
///
/// What the table leaves open, whether 04/05 is in April or in May, has to be chosen before it can be accepted. Deletes
/// itself when it is closed.
class MVCALENDARWIDGETS_EXPORT MvEntryTableDialog : public QDialog
{
    Q_OBJECT

public:
    /// The name is the file's, for the person.
    MvEntryTableDialog(const QByteArray &bytes, const QString &name, QWidget *parent);

    /// Shows a table file to a person; `use` gets all of it as it was understood, and nothing where it was not
    /// accepted. Nothing is called when the asker is gone by then.
    using Use = std::function<void(const std::optional<MvEntryReading> &reading)>;
    static void ask(const QFileInfo &file, QWidget *window, QObject *asker, const Use &use);

    MvEntryTable::Format format() const { return m_format; }
    /// All of the table in that format.
    MvEntryReading reading() const { return MvEntryTable::read(m_bytes, m_format); }

private:
    QComboBox *addCombo(const char *name, const QString &label, QLayout *layout);
    QLayout *createChoices();
    void fillChoices();
    void showTable();
    void showResult();
    void addColumnChooser(int column);
    void onEncodingOrSeparator();
    QString example() const;

    QByteArray m_bytes;
    MvEntryTable::Format m_format;
    QList<MvEntryTable::Row> m_rows; // the first ones
    QComboBox *m_separator = nullptr;
    QComboBox *m_encoding = nullptr;
    QComboBox *m_order = nullptr;
    QCheckBox *m_headings = nullptr;
    QCheckBox *m_yearly = nullptr;
    QTableWidget *m_table;
    QLabel *m_result;
    QPushButton *m_accept;
};
