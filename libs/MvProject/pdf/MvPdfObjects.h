// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>

class QFile;

/// What MvPdfFile hands over: the objects of a PDF and the file made of them. A mistake, or a disk that is full, is
/// told once, by write().
class MVPROJECT_EXPORT MvPdfObjects
{
public:
    MvPdfObjects() = default;
    virtual ~MvPdfObjects();
    MvPdfObjects(const MvPdfObjects &) = delete;
    MvPdfObjects &operator=(const MvPdfObjects &) = delete;

    virtual int reserve() = 0;
    virtual void set(int object, const QByteArray &value) = 0;
    virtual int add(const QByteArray &value) = 0;
    virtual int addPackedStream(const QByteArray &entries, const QByteArray &content) = 0;
    virtual void setCatalog(const QByteArray &value) = 0;
    virtual void setInformation(const QByteArray &value) = 0;
    virtual void setLeastVersion(const QByteArray &version) = 0;
    virtual MvOutcome write(QFile &file) = 0;
};
