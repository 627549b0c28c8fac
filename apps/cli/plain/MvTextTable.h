// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QStringList>
#include <QTextStream>

/// Rows of texts in aligned columns, two blanks apart.
class MvTextTable
{
public:
    void addRow(const QStringList &cells) { m_rows.append(cells); }
    void print(QTextStream &stream) const;

private:
    QList<QStringList> m_rows;
};
