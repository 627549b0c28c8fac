// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvLoadedModule.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace {

const char here = 0; // lies where the library does

QString pathOf(const char *name)
{
    Dl_info info{};
    const bool isKnown = dladdr(&here, &info) != 0 && info.dli_fname;
    const QFileInfo library(isKnown ? QFile::decodeName(info.dli_fname) : QString());
    return u"%1/%2/%3.so"_s.arg(library.absolutePath(), QStringLiteral(MV_MODULE_FOLDER), QString::fromLatin1(name));
}

} // namespace

void *MvLoadedModule::symbol(const char *name, QString *error)
{
    const QMutexLocker lock(&m_mutex);
    const QString path = pathOf(m_name);
    if (!m_handle)
        m_handle = dlopen(QFile::encodeName(path).constData(), RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE);
    if (!m_handle) {
        *error = tr("%1 lässt sich nicht laden: %2").arg(QDir::toNativeSeparators(path), QFile::decodeName(dlerror()));
        return nullptr;
    }
    void *found = dlsym(m_handle, name);
    if (!found)
        *error = tr("%1 gehört zu einer anderen Version.").arg(QDir::toNativeSeparators(path));
    return found;
}
