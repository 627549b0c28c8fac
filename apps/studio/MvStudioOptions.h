// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What stands on the command line of the studio.
class MvStudioOptions
{
    Q_DECLARE_TR_FUNCTIONS(MvStudioOptions)

public:
    /// The arguments begin with the program's name.
    static MvStudioOptions parse(const QStringList &arguments);

    /// For the terminal, instead of a window: help, version, or what is wrong; empty otherwise.
    QString message() const { return m_message; }
    /// 2 when the call was wrong.
    int exitCode() const { return m_exitCode; }

    QString file() const { return m_file; }
    /// "de", "en", or empty where nothing was said.
    QString language() const { return m_language; }
    /// "system", "light", "dark", or empty.
    QString theme() const { return m_theme; }

private:
    void fail(const QString &message);

    QString m_message;
    int m_exitCode = 0;
    QString m_file;
    QString m_language;
    QString m_theme;
};
