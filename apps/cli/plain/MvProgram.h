// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

class MvCli;

/// The process that a call is done in.
class MvProgram
{
public:
    /// Before the application is made: where it paints, its time zone, its warnings.
    static void prepare();
    /// Whether a warning says nothing that anybody can make use of: of the desktop session, which nothing here needs,
    /// or of fonts without a script, once for each; what the page lacks is told in its own words.
    static bool isNoise(const QString &warning);
    static QStringList arguments(int argc, char **argv);
    /// The call itself, as the application has it, in the user's language. Gives the exit code.
    static int run(const MvCli &cli);
};
