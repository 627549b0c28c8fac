// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QPointF>
#include <QString>

/// How numbers, texts and references are written in a PDF.
class MVPROJECT_EXPORT MvPdfSyntax
{
public:
    /// With at most so many decimals and no zeros at the end.
    static void append(QByteArray &out, double value, int decimals = 0);
    /// Both coordinates, each with a blank after it.
    static void append(QByteArray &out, const QPointF &point, int decimals = 0);
    static QByteArray number(double value, int decimals = 4);

    /// Bytes in brackets.
    static QByteArray string(const QByteArray &bytes);
    /// A text for people.
    static QByteArray text(const QString &text);
    /// UTF-16 as digits, without anything around it.
    static QByteArray utf16(QStringView text);
    static QByteArray reference(int object) { return QByteArray::number(object) + " 0 R"; }
};
