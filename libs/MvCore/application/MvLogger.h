// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QString>

#include <functional>

class MvLogger;
extern template class MVCORE_EXPORT MvSingleton<MvLogger>;

/// The log of what the user did: one line per action, an action name followed by names and values. Warnings go
/// through Qt's message logger instead.
class MVCORE_EXPORT MvLogger : public MvSingleton<MvLogger>
{
public:
    using Sink = std::function<void(const QString &line)>;

    /// Writes one line to the sink; line breaks in values become blanks, so that a line stays a line.
    static void legacyLog(const QString &line);
    /// The same for what was chosen in the panels and dialogs that design a calendar.
    static void logCalendarDesignDialog(const QString &line) { legacyLog(line); }

    /// Where lines go; without one (the default) to the logging category "mv.action", which is off unless asked for.
    void setSink(Sink sink);

private:
    Sink m_sink;
};
