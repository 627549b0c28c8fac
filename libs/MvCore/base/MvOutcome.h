// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

/// What came of something that may fail, for a person: the one form in which the libraries tell it.
///
/// An error says what did not work, where, and what can be done about it; nothing was done then that would have to be
/// undone. Notes are sentences about what was done in another way than one would expect. A function that also gives a
/// value returns a struct derived from this one; its value is only to be used when there is no error.
struct MvOutcome
{
    QString error; // empty when it worked
    QStringList notes;

    bool isOk() const { return error.isEmpty(); }
    explicit operator bool() const { return isOk(); }
};
