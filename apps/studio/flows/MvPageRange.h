// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

/// Pages as a person writes them: "1-3, 5".
class MvPageRange
{
    Q_DECLARE_TR_FUNCTIONS(MvPageRange)

public:
    /// The numbers of the pages, counted from 0, in ascending order, each once. An empty text means all. When a part is
    /// no page or range of pages, or there is no such page: an empty list and an error for a person.
    static QList<int> parse(const QString &text, int pageCount, QString *error);
};
