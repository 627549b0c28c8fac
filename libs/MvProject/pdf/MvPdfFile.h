// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QByteArray>

#include <memory>

class QFile;

/// The objects of a PDF, and the file made of them: numbering, packing, cross references and the file's identity, which
/// follows from its content. Libqpdf does it and checks the syntax of all that is handed over.
///
/// What is large waits in a temporary file. A mistake, or a disk that is full, is told once, by write().
class MvPdfFile
{
public:
    MvPdfFile();
    ~MvPdfFile();
    MvPdfFile(const MvPdfFile &) = delete;
    MvPdfFile &operator=(const MvPdfFile &) = delete;

    /// The number of an object whose value is set later.
    int reserve();
    void set(int object, const QByteArray &value);
    int add(const QByteArray &value);
    /// The same object for the same value.
    int addOnce(const QByteArray &value);
    /// A stream, which is packed here; the entries are those of its dictionary without the brackets.
    int addStream(const QByteArray &entries, const QByteArray &content);
    /// A stream that is packed already; the entries say how.
    int addPackedStream(const QByteArray &entries, const QByteArray &content);

    /// Both are dictionaries.
    void setCatalog(const QByteArray &value);
    void setInformation(const QByteArray &value);
    /// Of the format, "1.6", where more is used than the file shows by itself.
    void setLeastVersion(const QByteArray &version);

    /// Writes everything to the file, which is open and empty.
    MvOutcome write(QFile &file);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
