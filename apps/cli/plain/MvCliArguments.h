// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QMap>
#include <QStringList>

/// The options of one call, checked against those that the command has.
class MvCliArguments
{
    Q_DECLARE_TR_FUNCTIONS(MvCliArguments)

public:
    /// "--name value", "--name=value", "--switch", and the short forms of shortNames(): "-o value", "-ovalue". A word
    /// without a name, also "-", is the value of the option that allows it.
    MvOutcome parse(const QStringList &arguments, const QList<MvCliOption> &options);
    /// The letters that stand for options, wherever a command has these.
    static const QMap<QChar, QString> &shortNames();
    /// The option's names as a person reads them: "-o, --output".
    static QString describe(const QString &name);
    /// "-o" and "-ofile" as "--output" and "--output=file".
    static QString longForm(const QString &argument);
    /// Sets what the call did not say itself; the line is that of the file where it stands.
    void set(const QString &name, const QString &value, int line);
    /// The line of the file that set the option; 0 for one of the call.
    int line(const QString &name) const { return m_lines.value(name); }

    bool has(const QString &name) const { return m_values.contains(name); }
    /// The option's value; a null string when it was not given.
    QString value(const QString &name) const { return m_values.value(name).value(0); }
    QStringList values(const QString &name) const { return m_values.value(name); }

private:
    QHash<QString, QStringList> m_values;
    QHash<QString, int> m_lines;
};
