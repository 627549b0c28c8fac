// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfObjects.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>

class QFile;

/// The objects of a PDF, and the file made of them: numbering, packing, cross references and the file's identity, which
/// follows from its content. What does it is loaded with the first file; without it, as after a mistake or with a full
/// disk, write() says so.
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
    QString m_error;
    std::unique_ptr<MvPdfObjects> m_objects; // null where there is an error
    QHash<QByteArray, int> m_once;
};
