// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

/// A file name for each of several pages: "seite-%m.png".
///
/// Placeholders: %m the month (01 to 12), %y the year, %n the page's number (two digits or more, from 01), %% a
/// percent sign. They are replaced in the file's name only, never in that of its folder.
class MVPROJECT_EXPORT MvFileNamePattern
{
    Q_DECLARE_TR_FUNCTIONS(MvFileNamePattern)

public:
    explicit MvFileNamePattern(const QString &path)
        : m_path(path)
    {}

    /// The name of one page's file, counted from 0. An unknown placeholder stays as it stands.
    QString path(const QDate &month, int page) const;

    /// The names of all pages, whose numbers, counted from 0, are given unless they are 0, 1, 2 and so on. When they
    /// would not all differ, or a placeholder is unknown, an empty list and an error for a person.
    QStringList paths(const QList<QDate> &pages, QString *error, const QList<int> &numbers = {}) const;

private:
    QString m_path;
};
