// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvRequestHandler.h"
#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class MvDiskAccessRequest;
extern template class MVCORE_EXPORT MvSingleton<MvDiskAccessRequest>;

/// Asks the user for files and reports files that could not be used.
///
/// An answer is dropped when its asker is gone by then; without an asker it always arrives.
class MVCORE_EXPORT MvDiskAccessRequest : public MvSingleton<MvDiskAccessRequest>
{
    Q_DECLARE_TR_FUNCTIONS(MvDiskAccessRequest)

public:
    /// What a file is for.
    enum Kind {
        FotoFile = 1,
        ProjectFile = 2,
        ExportFile = 3,
        CalendarEntriesFile = 5,
        ColorSchemaFile = 6,
    };

    using Answer = MvRequestHandler::FileAnswer;

    /// Asks for a file that exists.
    void requestOpenFile(int kind, const QString &title, const QString &filter, QObject *asker, const Answer &answer);
    /// Asks for the name of a file to write; the user has agreed to replace one that exists.
    void requestSaveFile(int kind, const QString &title, const QString &filter, const QString &suggestedName,
                         QObject *asker, const Answer &answer);

    /// A file is no list of calendar entries, or a damaged one. The reason, if known, names the place.
    void readCalendarEntriesFileFailed(const QString &fileName, const QString &reason = {}, QObject *asker = nullptr);
    void writeCalendarEntriesFileFailed(const QString &fileName, const QString &reason = {}, QObject *asker = nullptr);
    /// A file is no photo that can be read.
    void readFotoFailed(const QString &fileName, QObject *asker = nullptr);
    /// Photos could not be taken over. The texts name them and say why; many are told in one message.
    void takeFotosFailed(const QStringList &texts, QObject *asker = nullptr);
};
