// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QObject;

/// Whom the libraries ask when only the user can answer, and tell what the user must know. A program installs the one
/// that fits: dialogs in a window, messages on a terminal, a script in a test.
///
/// Answers may come before the call returns or later; they are never waited for. GUI thread.
class MVCORE_EXPORT MvRequestHandler
{
public:
    enum class FileMode { Open, Save };

    struct FileRequest
    {
        int kind = 0; // of MvDiskAccessRequest::Kind; what belongs together shares its last folder
        FileMode mode = FileMode::Open;
        QString title;
        QString filter; // "*.xml", or in the form of file dialogs: "Fotos (*.jpg *.png);;Alle Dateien (*)"
        QString suggestedName;
        QString folder = {}; // where to look the first time; empty: wherever the program is
    };

    /// A question with named buttons.
    struct ChoiceRequest
    {
        QString title;
        QString text;        // the question; agreeing to it means the first button
        QString details;     // what helps to decide, may have several lines
        QStringList buttons; // the first one does what is asked for, the last one leaves all as it is
    };

    using FileAnswer = std::function<void(const QString &fileName)>; // empty: none was chosen
    using YesNoAnswer = std::function<void(bool yes)>;
    using ChoiceAnswer = std::function<void(int button)>; // counted from 0; closing the question means the last one

    MvRequestHandler() = default;
    virtual ~MvRequestHandler();
    MvRequestHandler(const MvRequestHandler &) = delete;
    MvRequestHandler &operator=(const MvRequestHandler &) = delete;

    // `asker` is who wants to know, for dialogs the widget they belong to; it may be null.
    virtual void askForFile(const FileRequest &request, QObject *asker, const FileAnswer &answer) = 0;
    virtual void askYesNo(const QString &title, const QString &text, QObject *asker, const YesNoAnswer &answer) = 0;
    virtual void report(const QString &title, const QString &text, QObject *asker) = 0;
    /// A handler without buttons of its own asks by askYesNo(), without the details; yes means the first button, no the
    /// last one.
    virtual void askChoice(const ChoiceRequest &request, QObject *asker, const ChoiceAnswer &answer);

    /// The installed one. Without one: reports are logged as warnings, and nobody is there to choose or to agree.
    static MvRequestHandler &current();
    /// Replaces the installed one and returns that; null goes back to none.
    static std::unique_ptr<MvRequestHandler> install(std::unique_ptr<MvRequestHandler> handler);
};
