// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarTheme.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QList>
#include <QString>

#include <optional>

/// Reads the themes of a file. One that names a layout, colours or a template that there are not, or that has another
/// mistake, is left out, and the mistake is told with file, line and id.
class MvThemeReader
{
    Q_DECLARE_TR_FUNCTIONS(MvThemeReader)

public:
    explicit MvThemeReader(const QFileInfo &file)
        : m_file(file)
    {}

    /// The themes without a mistake. A file that is not there has none.
    QList<MvCalendarTheme> read();

private:
    std::optional<MvCalendarTheme> readTheme(const QDomElement &element);
    void readLayouts(const QDomElement &element, MvCalendarTheme &theme);
    void readColors(const QDomElement &element, MvCalendarTheme &theme);
    void readFont(const QDomElement &element, MvCalendarTheme &theme);
    void readText(const QDomElement &element, MvCalendarTheme &theme);
    void readPages(const QDomElement &element, MvCalendarTheme &theme);
    QString layoutId(const QDomElement &element, const QString &key);
    QString colorsId(const QDomElement &element, const QString &key);
    void tell(const QDomElement &element, const QString &mistake);

    QFileInfo m_file;
    QString m_id;
    bool m_isWhole = true; // the theme that is read
};
