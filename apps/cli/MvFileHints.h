// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QTextStream>

/// Hints on one file. Each line is printed with the file's name when the object ends, so that a person who prints many
/// calendars knows which one is meant.
class MvFileHints
{
public:
    /// The stream outlives the hints.
    MvFileHints(const QString &file, QTextStream &hints)
        : m_file(file)
        , m_hints(hints)
    {}
    ~MvFileHints();
    MvFileHints(const MvFileHints &) = delete;
    MvFileHints &operator=(const MvFileHints &) = delete;

    QTextStream &stream() { return m_stream; }

private:
    QString m_file;
    QTextStream &m_hints;
    QString m_text;
    QTextStream m_stream{&m_text};
};
