// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvZipFile.h"

#include "MvCore/MvFileAttributes.h"
#include "MvCore/MvFileBackup.h"
#include "MvCore/MvFileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#include <zip.h>

MvZipFile::MvZipFile(const QString &path)
    : m_path(path)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile()) {
        setError(tr("Das ist keine Datei, die sich ersetzen lässt"));
        return;
    }
    const QFileInfo target(there.exists() ? there.canonicalFilePath() : there.absoluteFilePath());
    m_target = QFile::encodeName(target.filePath());
    m_temporary = MvFileBackup::temporaryPath(target.path());
    int code = 0;
    m_archive = zip_open(m_temporary.constData(), ZIP_CREATE | ZIP_TRUNCATE, &code);
    if (m_archive)
        return;
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    setError(QString::fromLocal8Bit(zip_error_strerror(&error)));
    zip_error_fini(&error);
}

MvZipFile::~MvZipFile()
{
    if (m_archive)
        zip_discard(m_archive);
}

void MvZipFile::add(const QString &name, const QByteArray &content)
{
    if (!m_archive)
        return;
    m_contents.append(std::make_shared<QByteArray>(content));
    take(name, zip_source_buffer(m_archive, m_contents.last()->constData(), zip_uint64_t(content.size()), 0), true);
}

void MvZipFile::addFile(const QString &name, const QString &path)
{
    if (m_archive)
        take(name, zip_source_file(m_archive, QFile::encodeName(path).constData(), 0, -1), false);
}

void MvZipFile::take(const QString &name, struct zip_source *source, bool isDeflated)
{
    const zip_int64_t index =
        source ? zip_file_add(m_archive, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8) : zip_int64_t(-1);
    if (index < 0) {
        setError(QString::fromLocal8Bit(zip_strerror(m_archive)));
        zip_source_free(source); // of none, nothing
        return;
    }
    zip_set_file_compression(m_archive, zip_uint64_t(index), isDeflated ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
}

MvOutcome MvZipFile::finish()
{
    if (m_archive && m_error.isEmpty()) {
        MvFileBackup::sweepTemporaries(QFileInfo(QFile::decodeName(m_target)).path());
        if (zip_close(m_archive) != 0) {
            setError(QString::fromLocal8Bit(zip_strerror(m_archive)));
        } else {
            m_archive = nullptr;
            if (!putInPlace()) {
                setError(MvFileDescriptor::errorText(errno));
                ::unlink(m_temporary.constData());
            }
        }
    }
    return {m_error, {}};
}

/// Complete and on disk before it takes the place of the file that is there, whose rights it gets.
bool MvZipFile::putInPlace()
{
    MvFileDescriptor file(::open(m_temporary.constData(), O_WRONLY | O_CLOEXEC));
    if (!file.isOpen())
        return false;
    if (QFileInfo::exists(QFile::decodeName(m_target)))
        MvFileAttributes::copy(m_target, file);
    return ::fsync(file.get()) == 0 && file.close() && ::rename(m_temporary.constData(), m_target.constData()) == 0;
}

void MvZipFile::setError(const QString &reason)
{
    if (m_error.isEmpty())
        m_error = tr("%1 lässt sich nicht schreiben: %2").arg(QDir::toNativeSeparators(m_path), reason);
}

extern "C" Q_DECL_EXPORT MvZipWriter *mvMakeZipWriter(const QString &path)
{
    return new MvZipFile(path);
}
