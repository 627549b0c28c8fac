// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QCoreApplication>
#include <QMutex>
#include <QString>

/// A shared object of ours that is loaded when something asks for it, so that what few calls need costs the others
/// nothing. It lies in the folder "mvcalendar-1" beside the library of this class and stays until the process ends.
///
/// May be asked by any thread.
class MVCORE_EXPORT MvLoadedModule
{
    Q_DECLARE_TR_FUNCTIONS(MvLoadedModule)

public:
    /// "<name>.so"; it is loaded by the first function that is asked for.
    explicit MvLoadedModule(const char *name)
        : m_name(name)
    {}
    MvLoadedModule(const MvLoadedModule &) = delete;
    MvLoadedModule &operator=(const MvLoadedModule &) = delete;

    /// A function that the module exports with C's names. Null when it cannot be loaded or has none; why, for a person,
    /// is then the error. What could not be loaded is tried anew when somebody asks again.
    template <class Function>
    Function *function(const char *name, QString *error)
    {
        return reinterpret_cast<Function *>(symbol(name, error));
    }

private:
    void *symbol(const char *name, QString *error);

    const char *m_name;
    QMutex m_mutex; // guards m_handle
    void *m_handle = nullptr;
};
