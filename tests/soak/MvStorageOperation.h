// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDir>
#include <QString>

#include <functional>

/// Something of the user's that the program puts on disk, in numbered states from 1 to 40. Everything lies below one
/// folder, which stands for the disk; photos that are chosen lie outside.
struct MvStorageOperation
{
    enum class Application { Core, Gui, Widgets };

    const char *name;
    Application application; // what the process that stores needs
    /// Stores a state; what a person is told when that fails, else nothing.
    std::function<QString(const QDir &disk, int state)> store;
    /// The state that is found by a program that starts; 0 when there is none, -1 for anything that no store() made.
    std::function<int(const QDir &disk)> stored;
    /// What happens before, while the disk works.
    std::function<void(const QDir &disk, int state)> prepare = {};
    /// The call that puts the new state in place is the last one: nobody can be killed after it.
    bool endsWithNewState = false;
};
