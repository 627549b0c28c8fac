// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvRequestHandler.h"
#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QString>

class MvYesNoRequest;
extern template class MVCORE_EXPORT MvSingleton<MvYesNoRequest>;

/// Asks the user to agree to something.
class MVCORE_EXPORT MvYesNoRequest : public MvSingleton<MvYesNoRequest>
{
public:
    using Answer = MvRequestHandler::YesNoAnswer;

    /// Closing the question means no. The answer is dropped when its asker is gone by then; without an asker it always
    /// arrives.
    void request(const QString &title, const QString &text, QObject *asker, const Answer &answer);
    /// The same with details below the question and two buttons of its own, the first one for yes.
    void request(const MvRequestHandler::ChoiceRequest &question, QObject *asker, const Answer &answer);
};
