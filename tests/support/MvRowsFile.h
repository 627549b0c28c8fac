// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QSizeF>
#include <QStringList>
#include <QVariant>

/// Tables of tests in files. A line is a row: what it is called, then its values, with a bar between blanks before
/// each. A row without a name of its own is called by its first value. Lines that begin with # say what stands in the
/// columns.
namespace MvRowsFile {

/// Each with its name and so many values; empty when the file is missing or one of its rows has more or fewer.
QList<QStringList> lines(const QString &name, qsizetype values);

/// Words of a list are parted by semicolons, the numbers of a size by a blank; dates are written as 2027-01-31, yes and
/// no stand for true and false. A text that begins or ends with a blank stands in quotation marks.
template <class Value>
Value value(const QString &text)
{
    if constexpr (std::is_same_v<Value, QByteArray>)
        return text.toUtf8();
    else if constexpr (std::is_same_v<Value, QDate>)
        return QDate::fromString(text, Qt::ISODate);
    else if constexpr (std::is_same_v<Value, QStringList>)
        return text.split(QStringLiteral("; "), Qt::SkipEmptyParts);
    else if constexpr (std::is_same_v<Value, QSizeF>)
        return text.isEmpty() ? QSizeF()
                              : QSizeF(text.section(u' ', 0, 0).toDouble(), text.section(u' ', 1).toDouble());
    else if constexpr (std::is_same_v<Value, bool>)
        return text == QStringLiteral("yes");
    else
        return QVariant(text).value<Value>();
}

} // namespace MvRowsFile
