// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QString>
#include <QStringList>

/// What of a project file could not be taken as it stands there, each with file and place.
class MvProjectNotes
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectNotes)

public:
    explicit MvProjectNotes(const QFileInfo &file)
        : m_file(file)
    {}

    const QStringList &all() const { return m_notes; }

    void add(const QDomElement &place, const QString &message) { m_notes.append(placed(place, message)); }
    /// Tells of an attribute that holds another number than was taken.
    void addIfChanged(const QDomElement &place, const QString &attribute, double taken);
    /// Tells of an attribute that holds none of the words; gives the index of the one it holds, else 0.
    int addIfUnknown(const QDomElement &place, const QString &attribute, const QStringList &words);
    QString placed(const QDomElement &place, const QString &message) const;

private:
    QFileInfo m_file;
    QStringList m_notes;
};
