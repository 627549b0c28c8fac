// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>
#include <QStringList>

class MvPageSource;

/// A file name for each of several pages: "seite-%m.png".
///
/// Placeholders: %m the month (01 to 12), %y the year, %n the page's number (two digits or more, from 01), %r the
/// calendar's region ("BY", or its country where it has none), %% a percent sign. They are replaced in the file's name
/// only, never in that of its folder. For pages that are no month's, %m is "cover", "back", or the month and "free"
/// ("05-free").
class MVPROJECT_EXPORT MvFileNamePattern
{
    Q_DECLARE_TR_FUNCTIONS(MvFileNamePattern)

public:
    explicit MvFileNamePattern(const QString &path)
        : m_path(path)
    {}

    /// The name of one page's file, counted from 0. An unknown placeholder stays as it stands.
    QString path(const QDate &month, int page, MvPageKind kind = MvPageKind::Month, const QString &region = {}) const;
    /// The name of one file with all pages, in which %r and %% are replaced: all else is as it stands.
    QString pathOfAll(const MvPageSource &pages) const;

    struct Paths : MvOutcome
    {
        QStringList paths; // empty on error
    };

    /// The names of all pages. That they would not all differ, or that a placeholder is unknown, is an error.
    Paths paths(const MvPageSource &pages) const;

    /// Text as it must stand in a pattern to mean itself.
    static QString escaped(QString text) { return text.replace(QLatin1StringView("%"), QLatin1StringView("%%")); }

private:
    QString m_path;
};
