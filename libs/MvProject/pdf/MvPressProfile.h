// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// How a press prints colours on a kind of paper: an ICC profile that turns colours into cyan, magenta, yellow and
/// black, checked for that. A value; one that was not loaded stands for no press.
class MVPROJECT_EXPORT MvPressProfile
{
    Q_DECLARE_TR_FUNCTIONS(MvPressProfile)

public:
    struct Loaded;

    MvPressProfile() = default;

    /// One of names(), whatever the case; a file; or the name of a profile that is installed for all programs
    /// ("ISOcoated_v2"). What is no profile of a press is an error that names the file.
    static Loaded load(const QString &nameOrFile);
    /// The file that load() reads; empty when there is none.
    static QString fileOf(const QString &nameOrFile);
    /// Those that are shipped: "fogra39", …
    static QStringList names();

    bool isValid() const { return !m_content.isEmpty(); }
    /// What it calls itself: "FOGRA39L coated".
    QString description() const { return m_description; }
    /// The printing condition as shops name it: "FOGRA39"; of a file that is not shipped, what it calls itself.
    QString condition() const { return m_condition; }
    /// Whether the condition stands in the register of such conditions.
    bool isRegistered() const { return m_isRegistered; }
    /// The file.
    QByteArray content() const { return m_content; }
    /// What paper takes of all inks together, in percent of one.
    int inkLimit() const { return m_inkLimit; }

private:
    static QString installed(const QString &name);
    QString read(const QString &path);
    QString check();

    QString m_description;
    QString m_condition;
    bool m_isRegistered = false;
    QByteArray m_content;
    int m_inkLimit = 300;
};

struct MvPressProfile::Loaded : MvOutcome
{
    MvPressProfile profile;
};
