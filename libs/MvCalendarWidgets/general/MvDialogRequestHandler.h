// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvRequestHandler.h"
#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QCoreApplication>
#include <QHash>

#include <functional>

/// Asks and reports through dialogs that belong to the window of the asking widget. For programs with windows:
/// `MvRequestHandler::install(std::make_unique<MvDialogRequestHandler>())`.
class MVGUIWIDGETS_EXPORT MvDialogRequestHandler : public MvRequestHandler
{
    Q_DECLARE_TR_FUNCTIONS(MvDialogRequestHandler)

public:
    MvDialogRequestHandler();
    ~MvDialogRequestHandler() override;

    /// Who keeps the folders in which files of a kind were chosen, beyond this run of the program. `given` has an empty
    /// answer for a kind that it does not know.
    void setFolderMemory(const std::function<QString(int kind)> &given,
                         const std::function<void(int kind, const QString &folder)> &keep);

    void askForFile(const FileRequest &request, QObject *asker, const FileAnswer &answer) override;
    void askYesNo(const QString &title, const QString &text, QObject *asker, const YesNoAnswer &answer) override;
    void report(const QString &title, const QString &text, QObject *asker) override;
    void askChoice(const ChoiceRequest &request, QObject *asker, const ChoiceAnswer &answer) override;

private:
    QString folderFor(const FileRequest &request) const;

    QHash<int, QString> m_lastFolders; // by kind of file
    std::function<QString(int)> m_givenFolder;
    std::function<void(int, const QString &)> m_keepFolder;
};
