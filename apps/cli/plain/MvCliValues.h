// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "plain/MvCliArguments.h"

#include <QDate>
#include <QString>
#include <QStringList>

/// Turns the texts of options into values. The first that makes no sense is kept as the error, which names what is
/// allowed; later ones are not looked at, so a command reads all its options and asks for the error once.
class MvCliValues
{
    Q_DECLARE_TR_FUNCTIONS(MvCliValues)

public:
    explicit MvCliValues(const MvCliArguments &arguments)
        : m_arguments(arguments)
    {}

    bool isOk() const { return m_error.isEmpty(); }
    QString error() const { return m_error; }
    void setError(const QString &error);

    bool has(const QString &name) const { return m_arguments.has(name); }
    QString text(const QString &name, const QString &defaultValue = {}) const;

    int number(const QString &name, int minimum, int maximum, int defaultValue);
    /// Millimetres, with comma or point.
    double millimetres(const QString &name, double maximum, double defaultValue);
    int year(const QString &name, int defaultValue);
    /// "2026-08": the first day of the month.
    QDate month(const QString &name);
    /// One of the allowed words, whatever the case; the first is the default.
    QString choice(const QString &name, const QStringList &allowed);
    /// "--format", or "--json": one of the allowed words; the first is the default.
    QString format(const QStringList &allowed);
    /// Of two options, at most one may be given.
    void exclude(const QString &name, const QString &other);

    /// "--country": a code ("DE", "CH") or a German name; with "--language" where a country has several.
    MvLocale country();
    /// "--region": a code or a name, of that country; empty when it was not given.
    QString region(const MvLocale &locale);

private:
    QString m_error;
    const MvCliArguments &m_arguments;
};
