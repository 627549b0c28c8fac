// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

/// One property of a visiting card: "item1.BDAY;VALUE=date:1990-05-17". Its value is undone of transfer encodings.
struct MvVCardProperty
{
    QByteArray group; // upper case, as are names of properties and parameters
    QByteArray name;
    QHash<QByteArray, QByteArray> parameters; // those without a name, as in version 2.1, are joined under ""
    QByteArray value;
    bool isCut = false; // it was longer than is taken; of a picture nothing is left then

    bool has(const char *parameter, const char *word) const;
    bool isQuotedPrintable() const;
    bool isBase64() const;

    /// The value in its character set: the one it names, else UTF-8, else Western European.
    QString text() const;

    /// The value's parts between semicolons, without escapes.
    static QList<QString> components(const QString &text);
    /// Backslash escapes undone.
    static QString unescaped(const QString &text);
};
