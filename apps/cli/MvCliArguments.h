// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCliOption.h"
#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QStringList>

/// The options of one call, checked against those that the command has.
class MvCliArguments
{
    Q_DECLARE_TR_FUNCTIONS(MvCliArguments)

public:
    /// "--name value", "--name=value", "--switch"; "-o" stands for "--output". A word without a name is the value of
    /// the option that allows it.
    MvOutcome parse(const QStringList &arguments, const QList<MvCliOption> &options);

    bool has(const QString &name) const { return m_values.contains(name); }
    /// The option's value; a null string when it was not given.
    QString value(const QString &name) const { return m_values.value(name).value(0); }
    QStringList values(const QString &name) const { return m_values.value(name); }

private:
    QHash<QString, QStringList> m_values;
};
