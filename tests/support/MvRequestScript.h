// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvRequestHandler.h"

#include <QStringList>

/// Answers at once and notes what was asked and reported.
class MvRequestScript : public MvRequestHandler
{
public:
    void askForFile(const FileRequest &request, QObject *, const FileAnswer &answer) override
    {
        requests.append(QStringLiteral("%1 %2 %3").arg(request.kind).arg(request.title, request.filter));
        answer(file);
    }
    void askYesNo(const QString &title, const QString &text, QObject *, const YesNoAnswer &answer) override
    {
        requests.append(title == text ? title : text);
        answer(agrees);
    }
    void askChoice(const ChoiceRequest &request, QObject *asker, const ChoiceAnswer &answer) override
    {
        MvRequestHandler::askChoice(request, asker, answer);
        details = request.details;
    }
    void report(const QString &, const QString &text, QObject *) override { reports.append(text); }

    QString file; ///< that is chosen; empty: none
    bool agrees = true;
    QStringList requests;
    QStringList reports;
    QString details; ///< of the last choice
};
