// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

/// Finds what somebody may have meant who mistyped a name.
class MvNearMiss
{
    Q_DECLARE_TR_FUNCTIONS(MvNearMiss)

public:
    /// The known name nearest to the mistyped one, whatever the case: at most a third of its letters differ, or it
    /// begins with what was typed (three letters or more). A null string when none is near.
    static QString find(const QString &typed, const QStringList &known);

    /// " – meinten Sie „…“?" or an empty string.
    static QString describe(const QString &typed, const QStringList &known);
};
