// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>

/// What the studio remembers from one start to the next; stored at once.
class MvStudioSettings
{
    Q_DECLARE_TR_FUNCTIONS(MvStudioSettings)

public:
    static constexpr int mostRecentFiles = 10;

    /// "de", "en", or empty for the system's.
    static QString language();
    static void setLanguage(const QString &language);

    /// A name that MvTheme knows.
    static QString theme();
    static void setTheme(const QString &theme);

    /// Absolute paths, the newest first; they need not exist any more.
    static QStringList recentFiles();
    static void addRecentFile(const QString &path);
    static void removeRecentFile(const QString &path);
    static void clearRecentFiles();

    /// The folder where a file of a kind ("project", "export", "contacts") was last looked for; the user's documents
    /// at first, or the home folder without those.
    static QString folder(const QString &kind);
    static void setFolder(const QString &kind, const QString &path);
    /// The folder where a photo was last looked for, wherever in the program; the user's pictures at first.
    static QString fotoFolder();
    /// The same for the kinds of MvDiskAccessRequest; empty for one that was never asked for.
    static QString folderOfRequest(int kind);
    static void setFolderOfRequest(int kind, const QString &path);

    static QByteArray windowGeometry();
    static QByteArray windowState();
    static void setWindow(const QByteArray &geometry, const QByteArray &state);

    /// Whether the three ways in are shown at the start; until the user closes them.
    static bool isWelcomeShown();
    static void setWelcomeShown(bool shown);

    /// Whether what is changed in a calendar's entries is changed in the user's own list, too; at first it is.
    static bool doEntriesReachOwn();
    static void setEntriesReachOwn(bool reach);

    /// Any value of a dialog that it offers again next time.
    static QString text(const QString &key, const QString &defaultValue = {});
    static void setText(const QString &key, const QString &value);

    /// Is called when a value could not be stored, with the file's name for a person; once until storing works again.
    static void setFailureHandler(const std::function<void(const QString &error)> &handler);
};
