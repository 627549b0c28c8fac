// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

class QObject;

/// The way from a file of entries that a person has chosen to the list of a session: nothing is taken without a word
/// where something would be lost.
///
/// What is no list, or has nothing that can be read, is reported. Where entries of the file would be left out, or
/// those of the list replaced, the person decides. Questions and reports go through MvRequestHandler. GUI thread.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventFileIntake
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventFileIntake)

public:
    enum class Purpose { Replace, Add };
    using Take = std::function<void(const MvCalendarEventList &read)>;

    /// Reads the file, a large one in a thread of its own, shows a table before that, and calls `take` once the person
    /// agrees; at once when there is nothing to ask. Nothing is called when the asker is gone by then; it must not be
    /// null. Nor is it when another calendar is open by then, which is reported.
    static void start(const QString &fileName, Purpose purpose, QObject *asker, const Take &take,
                      MvSession &session = MvSession::defaultSession());

private:
    static void judge(const QString &fileName, Purpose purpose, const MvCalendarEventFile::Content &content,
                      QObject *asker, const Take &take, const MvSession &session);
};
