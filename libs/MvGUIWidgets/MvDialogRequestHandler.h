#pragma once

#include "MvCore/MvRequestHandler.h"
#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QCoreApplication>
#include <QHash>

/// Asks and reports through dialogs that belong to the window of the asking widget. For programs with windows:
/// `MvRequestHandler::install(std::make_unique<MvDialogRequestHandler>())`.
class MVGUIWIDGETS_EXPORT MvDialogRequestHandler : public MvRequestHandler
{
    Q_DECLARE_TR_FUNCTIONS(MvDialogRequestHandler)

public:
    MvDialogRequestHandler();
    ~MvDialogRequestHandler() override;

    void askForFile(const FileRequest &request, QObject *asker, const FileAnswer &answer) override;
    void askYesNo(const QString &title, const QString &text, QObject *asker, const YesNoAnswer &answer) override;
    void report(const QString &title, const QString &text, QObject *asker) override;
    void askChoice(const ChoiceRequest &request, QObject *asker, const ChoiceAnswer &answer) override;

private:
    QHash<int, QString> m_lastFolders; // by kind of file
};
