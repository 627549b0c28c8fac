// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchList.h"

#include "MvBatchOutputs.h"
#include "MvCore/MvLineReader.h"
#include "MvCore/MvRegularFile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

MvBatchList::Shard MvBatchList::Shard::fromText(const QString &text)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(u"(\\d{1,6})/(\\d{1,6})"_s));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    return match.hasMatch() ? Shard{match.captured(1).toInt(), match.captured(2).toInt()} : Shard{0, 0};
}

MvBatchList MvBatchList::read(const QString &path)
{
    MvBatchList list;
    if (path == u"-"_s) {
        list.place = tr("Standardeingabe");
        QFile input;
        if (input.open(stdin, QIODevice::ReadOnly))
            list.readLines(input);
        else
            list.error = list.place + u": "_s + input.errorString();
        return list;
    }
    list.place = QDir::toNativeSeparators(path);
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(path));
    if (opened.isOk())
        list.readLines(*opened.file);
    else
        list.error = list.place + u": "_s + opened.error;
    return list;
}

void MvBatchList::readLines(QIODevice &device)
{
    MvLineReader lines(&device, longestLine);
    QByteArray text;
    for (int number = 1; lines.next(&text); ++number) {
        if (text.trimmed().isEmpty())
            continue;
        MvBatchJob job;
        job.line = number;
        if (lines.isCut())
            job.error = tr("die Zeile ist länger als %1 MB").arg(longestLine >> 20);
        else
            job = MvBatchJob::fromLine(text, number);
        jobs.append(job);
    }
    refuseSharedOutputs();
}

void MvBatchList::refuseSharedOutputs()
{
    MvBatchOutputs outputs;
    for (int i = 0; i < jobs.size(); ++i) {
        for (const QString &output : jobs[i].error.isEmpty() ? jobs[i].outputs() : QStringList())
            outputs.add(i, output);
    }
    for (const MvBatchOutputs::Clash &clash : outputs.clashes()) {
        MvBatchJob &job = jobs[clash.owner];
        if (clash.other == clash.owner)
            job.error = tr("%1 ist zweimal angegeben").replace(u"%1"_s, clash.pattern);
        else
            job.error = tr("%2 schreibt auch Zeile %1; keiner der beiden Kalender wird gemacht")
                            .arg(jobs[clash.other].line)
                            .replace(u"%2"_s, clash.pattern);
    }
}

QString MvBatchList::placeOf(const MvBatchJob &job) const
{
    const QString name = job.name();
    return tr("%1, Zeile %2").arg(place, QString::number(job.line)) +
           (name.isEmpty() ? QString() : u" ("_s + name + u')');
}
