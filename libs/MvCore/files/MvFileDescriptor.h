// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QFileDevice;

/// An open file of the operating system, closed when it goes. Failures are told through errno.
class MVCORE_EXPORT MvFileDescriptor
{
    Q_DECLARE_TR_FUNCTIONS(MvFileDescriptor)

public:
    MvFileDescriptor() = default;
    /// Takes the descriptor over; a negative one is closed.
    explicit MvFileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {}
    MvFileDescriptor(MvFileDescriptor &&other) noexcept;
    MvFileDescriptor &operator=(MvFileDescriptor &&other) noexcept;
    MvFileDescriptor(const MvFileDescriptor &) = delete;
    MvFileDescriptor &operator=(const MvFileDescriptor &) = delete;
    ~MvFileDescriptor() { close(); }

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

    /// Writes all bytes or says no.
    bool writeAll(const QByteArray &content);
    /// False when the system tells of a failed writing only now.
    bool close();

    /// Puts the entries of a folder on disk. File systems that cannot do that count as done.
    static bool syncFolder(const QString &folder);
    /// The reason for a person, without the file's name.
    static QString errorText(int systemError);
    /// The same for a file of which less was written than was given.
    static QString writeErrorText(const QFileDevice &file);

private:
    int m_descriptor = -1;
};
