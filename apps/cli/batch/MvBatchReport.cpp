// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchReport.h"

#include "MvCore/MvFileDescriptor.h"
#include "MvCore/MvSafeFileWriter.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <algorithm>

#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

MvOutcome MvBatchReport::open(const QString &path)
{
    if (path.isEmpty() || path == u"-"_s) {
        if (!m_file.open(stdout, QIODevice::WriteOnly))
            return {m_file.errorString(), {}};
        return {};
    }
    const QString name = QDir::toNativeSeparators(path);
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        return {tr("%1 ist keine Datei").replace(u"%1"_s, name), {}};
    do {
        m_file.close();
        m_file.setFileName(path);
        if (!m_file.open(QIODevice::ReadWrite | QIODevice::Append))
            return {name + u": "_s + m_file.errorString(), {}};
        if (::flock(m_file.handle(), LOCK_EX | LOCK_NB) != 0)
            return {tr("%1 gehört einem anderen Lauf, der noch nicht fertig ist").replace(u"%1"_s, name), {}};
    } while (!lock());
    return readLines();
}

/// False when another run has put a new file in its place meanwhile.
bool MvBatchReport::lock()
{
    struct stat opened = {};
    struct stat present = {};
    return ::fstat(m_file.handle(), &opened) == 0 &&
           ::stat(QFile::encodeName(m_file.fileName()).constData(), &present) == 0 && opened.st_ino == present.st_ino &&
           opened.st_dev == present.st_dev;
}

/// The run before was killed, or the disk was full; a first line must look like the beginning of one.
bool MvBatchReport::isCut(const QByteArray &line, int number)
{
    return number > 1 || (line.startsWith("{\"") && QJsonDocument::fromJson(line).isNull());
}

/// What follows would not be readable behind it.
MvOutcome MvBatchReport::dropFrom(qint64 begin)
{
    m_isLacking = false;
    return {m_file.resize(begin) ? QString() : m_file.fileName() + u": "_s + m_file.errorString(), {}};
}

MvOutcome MvBatchReport::readLines()
{
    m_file.seek(0);
    for (int number = 1; !m_file.atEnd(); ++number) {
        const qint64 begin = m_file.pos();
        const QByteArray line = m_file.readLine();
        m_isLacking = !line.endsWith('\n');
        const std::optional<MvBatchResult> result = MvBatchResult::fromLine(line);
        if (!result && m_isLacking && isCut(line, number))
            return dropFrom(begin);
        if (!result && !line.trimmed().isEmpty())
            return {tr("%1, Zeile %2: das ist kein Bericht eines Stapels; er bleibt, wie er ist")
                        .arg(m_file.fileName(), QString::number(number)),
                    {}};
        if (result && !result->fingerprint().isEmpty())
            m_known.insert(result->fingerprint(), *result);
    }
    return {};
}

std::optional<MvBatchResult> MvBatchReport::known(const QString &fingerprint) const
{
    const auto found = m_known.constFind(fingerprint);
    return found == m_known.cend() ? std::nullopt : std::optional(*found);
}

MvOutcome MvBatchReport::add(const MvBatchResult &result)
{
    m_results.append(result);
    const QByteArray end = m_isLacking ? "\n" : "";
    m_isLacking = false;
    return write(end + result.toLine());
}

MvOutcome MvBatchReport::write(const QByteArray &bytes)
{
    if (m_file.write(bytes) == bytes.size() && m_file.flush())
        return {};
    const QString name = m_file.fileName().isEmpty() ? tr("die Standardausgabe") : m_file.fileName();
    return {tr("%1: der Bericht lässt sich nicht schreiben: %2").arg(name, MvFileDescriptor::writeErrorText(m_file)),
            {}};
}

MvOutcome MvBatchReport::finish(const QHash<QString, int> &others)
{
    if (m_file.fileName().isEmpty())
        return {};
    for (auto other = others.cbegin(); other != others.cend(); ++other) {
        if (std::optional<MvBatchResult> result = known(other.key())) {
            result->line = other.value();
            m_results.append(*result);
        }
    }
    std::stable_sort(m_results.begin(), m_results.end(),
                     [](const MvBatchResult &one, const MvBatchResult &other) { return one.line < other.line; });
    QByteArray content;
    for (const MvBatchResult &result : std::as_const(m_results))
        content += result.toLine();
    MvOutcome outcome = MvSafeFileWriter::write(QFileInfo(m_file.fileName()), content, MvSafeFileWriter::Backups::None);
    if (!outcome.isOk())
        outcome.error.prepend(m_file.fileName() + u": "_s);
    return outcome;
}
