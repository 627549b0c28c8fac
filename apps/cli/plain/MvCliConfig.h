// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "plain/MvCliArguments.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

/// What a person always wants, so that it need not stand in every call: a file of lines "name = value", or "name" for a
/// switch, as the options are called. "[render]" begins the lines for one command; those before the first such line
/// are for every command that has the option. "#" begins a comment.
///
///     country = AT
///     region = Tirol
///     [render]
///     page = A3
///     vacations
///
/// The call comes first: what it says itself, or what goes against a line (a project against a paper, another country
/// against a region), sets the line aside.
class MvCliConfig
{
    Q_DECLARE_TR_FUNCTIONS(MvCliConfig)

public:
    /// The file that MVCALENDAR_CONFIG names, or mvcalendar/mvcalendar.conf in the user's folder of configurations. One
    /// that is missing says nothing, unless it was named.
    static QString path();
    /// The options that may stand there; the others say what a single call is about.
    static QStringList names();

    /// Reads the file; the error names it and the line.
    static MvCliConfig read(const QString &path, const QStringList &commands);
    bool isOk() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }

    /// Adds to the call what the file says of the command's options. An option that the section of the command may not
    /// have is an error.
    MvOutcome applyTo(MvCliArguments &call, const QString &command, const QList<MvCliOption> &options) const;
    /// " (mvcalendar.conf, line 3)" when the error is about an option that came from the file; else empty.
    QString placeOf(const QString &error, const MvCliArguments &call) const;

private:
    struct Line
    {
        QString section; // empty for all commands
        QString name;
        QString value;
        int number = 0;
    };

    QString place(int line) const;
    void fail(int line, const QString &what);
    void readLine(const QString &text, int number, const QStringList &commands, QString &section);

    QString m_path;
    QString m_error;
    QList<Line> m_lines;
};
