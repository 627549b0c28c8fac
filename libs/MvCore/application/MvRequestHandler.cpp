// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvRequestHandler.h"

#include <QDebug>
#include <QObject>

#include <utility>

namespace {

class Nobody : public MvRequestHandler
{
public:
    void askForFile(const FileRequest &, QObject *, const FileAnswer &answer) override { answer({}); }
    void askYesNo(const QString &, const QString &, QObject *, const YesNoAnswer &answer) override { answer(false); }
    void report(const QString &title, const QString &text, QObject *) override
    {
        qWarning().noquote() << title << text;
    }
};

std::unique_ptr<MvRequestHandler> &installed()
{
    static std::unique_ptr<MvRequestHandler> handler;
    return handler;
}

} // namespace

MvRequestHandler::~MvRequestHandler() = default;

void MvRequestHandler::askChoice(const ChoiceRequest &request, QObject *asker, const ChoiceAnswer &answer)
{
    const int last = int(request.buttons.size()) - 1;
    askYesNo(request.title, request.text, asker, [answer, last](bool yes) { answer(yes ? 0 : last); });
}

MvRequestHandler &MvRequestHandler::current()
{
    static Nobody nobody;
    return installed() ? *installed() : nobody;
}

std::unique_ptr<MvRequestHandler> MvRequestHandler::install(std::unique_ptr<MvRequestHandler> handler)
{
    return std::exchange(installed(), std::move(handler));
}
