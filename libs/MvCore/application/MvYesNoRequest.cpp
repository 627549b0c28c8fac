// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvYesNoRequest.h"

#include <QObject>
#include <QPointer>

template class MvSingleton<MvYesNoRequest>;

namespace {

MvYesNoRequest::Answer whileAlive(QObject *asker, const MvYesNoRequest::Answer &answer)
{
    return [hasAsker = asker != nullptr, guard = QPointer<QObject>(asker), answer](bool yes) {
        if (!hasAsker || guard)
            answer(yes);
    };
}

} // namespace

void MvYesNoRequest::request(const QString &title, const QString &text, QObject *asker, const Answer &answer)
{
    MvRequestHandler::current().askYesNo(title, text, asker, whileAlive(asker, answer));
}

void MvYesNoRequest::request(const MvRequestHandler::ChoiceRequest &question, QObject *asker, const Answer &answer)
{
    MvRequestHandler::current().askChoice(question, asker,
                                          [guarded = whileAlive(asker, answer)](int button) { guarded(button == 0); });
}
