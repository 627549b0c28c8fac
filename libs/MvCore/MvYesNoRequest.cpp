#include "MvCore/MvYesNoRequest.h"

#include <QPointer>

template class MvSingleton<MvYesNoRequest>;

void MvYesNoRequest::request(const QString &title, const QString &text, QObject *asker, const Answer &answer)
{
    const auto whileAlive = [hasAsker = asker != nullptr, guard = QPointer<QObject>(asker), answer](bool yes) {
        if (!hasAsker || guard)
            answer(yes);
    };
    MvRequestHandler::current().askYesNo(title, text, asker, whileAlive);
}
