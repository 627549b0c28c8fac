// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFoto.h"

#include "MvCore/MvSharedData.h"

struct MvFotoImpl : MvSharedData
{
    MvFotoKeyFileInfo key;
};

MvFoto::MvFoto() = default;
MvFoto::~MvFoto() = default;
MvFoto::MvFoto(const MvFoto &) = default;
MvFoto::MvFoto(MvFoto &&) noexcept = default;
MvFoto &MvFoto::operator=(const MvFoto &) = default;
MvFoto &MvFoto::operator=(MvFoto &&) noexcept = default;

MvFoto::MvFoto(const QFileInfo &file)
    : MvFoto(MvFotoKeyFileInfo(file.filePath(), {}, QDir::current()))
{}

MvFoto::MvFoto(const MvFotoKeyFileInfo &key)
{
    if (!key.isValid())
        return;
    d = new MvFotoImpl;
    d->key = key;
}

bool MvFoto::isValid() const
{
    return d.constData() != nullptr;
}

bool MvFoto::mayBeOpened() const
{
    return isValid() && d.constData()->key.mayBeOpened();
}

MvFotoKeyFileInfo MvFoto::key() const
{
    return isValid() ? d.constData()->key : MvFotoKeyFileInfo();
}

QFileInfo MvFoto::localFileInfo() const
{
    return isValid() ? QFileInfo(localFilePath()) : QFileInfo();
}

QString MvFoto::localFilePath() const
{
    return isValid() ? d.constData()->key.path() : QString();
}

MvMediaFormat MvFoto::mediaFormat() const
{
    return mayBeOpened() ? MvMediaFormat::ofFile(localFileInfo()) : MvMediaFormat();
}

QString MvFoto::filenameHint() const
{
    return localFileInfo().completeBaseName();
}

QString MvFoto::fileExtensionHint() const
{
    return localFileInfo().suffix();
}

bool operator==(const MvFoto &a, const MvFoto &b)
{
    return a.d == b.d || (a.isValid() && b.isValid() && a.d.constData()->key == b.d.constData()->key);
}

bool operator<(const MvFoto &a, const MvFoto &b)
{
    if (!a.isValid() || !b.isValid())
        return !a.isValid() && b.isValid();
    return a.d.constData()->key < b.d.constData()->key;
}

QDebug operator<<(QDebug debug, const MvFoto &foto)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "MvFoto(" << foto.localFilePath() << ')';
    return debug;
}

size_t qHash(const MvFoto &foto, size_t seed)
{
    return qHash(foto.localFilePath(), seed);
}
