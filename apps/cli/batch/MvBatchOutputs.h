// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QString>

/// Which calendars of a batch would write the same file: two names that are equal, whatever way leads to the folder, or
/// patterns ("%m") that may give the same name. With ten thousand calendars a matter of a second or two, as long as
/// their names differ before the first placeholder or behind the last one.
class MvBatchOutputs
{
public:
    /// The owner is any number that tells calendars apart.
    void add(int owner, const QString &pattern);

    struct Clash
    {
        int owner = 0;
        int other = 0; // may be the owner itself, which names a file twice
        QString pattern;
    };
    /// One per pattern that is not alone, in the order of adding: with the first other that it meets.
    QList<Clash> clashes() const;

private:
    struct Output
    {
        int owner = 0;
        QString pattern;
        QString beginning; // whole path up to the first placeholder
        QString front;     // up to the first placeholder of which it is not known how long it will be
        QString back;      // what follows the last one of these
        QString core;      // its longest piece without a placeholder
        QRegularExpression shape;
        QStringList examples; // whole paths that it may become
    };

    QString folderOf(const QString &pattern);
    /// Of two of which one begins as the other does up to its first placeholder.
    static bool meet(const Output &one, const Output &other);

    QList<Output> m_outputs;
    QHash<QString, QList<int>> m_byBeginning;
    QHash<QString, QString> m_folders; // as named -> as it is
};
