// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvDiskAccessRequest.h"

#include <QDir>
#include <QPointer>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

template class MvSingleton<MvDiskAccessRequest>;

namespace {

constexpr qsizetype mostTexts = 5; // in one message

MvDiskAccessRequest::Answer whileAlive(QObject *asker, const MvDiskAccessRequest::Answer &answer)
{
    if (!asker)
        return answer;
    return [guard = QPointer<QObject>(asker), answer](const QString &fileName) {
        if (guard)
            answer(fileName);
    };
}

/// Photos lie among the pictures, all else among the documents.
QString firstFolder(int kind)
{
    const bool isFoto = kind == MvDiskAccessRequest::FotoFile;
    const QString folder =
        QStandardPaths::writableLocation(isFoto ? QStandardPaths::PicturesLocation : QStandardPaths::DocumentsLocation);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

QString withReason(const QString &text, const QString &reason)
{
    return reason.isEmpty() ? text : text + u"\n\n"_s + reason;
}

} // namespace

void MvDiskAccessRequest::requestOpenFile(int kind, const QString &title, const QString &filter, QObject *asker,
                                          const Answer &answer)
{
    const MvRequestHandler::FileRequest request{
        kind, MvRequestHandler::FileMode::Open, title, filter, {}, firstFolder(kind)};
    MvRequestHandler::current().askForFile(request, asker, whileAlive(asker, answer));
}

void MvDiskAccessRequest::requestSaveFile(int kind, const QString &title, const QString &filter,
                                          const QString &suggestedName, QObject *asker, const Answer &answer)
{
    const MvRequestHandler::FileRequest request{
        kind, MvRequestHandler::FileMode::Save, title, filter, suggestedName, firstFolder(kind)};
    MvRequestHandler::current().askForFile(request, asker, whileAlive(asker, answer));
}

void MvDiskAccessRequest::readCalendarEntriesFileFailed(const QString &fileName, const QString &reason, QObject *asker)
{
    const QString text = tr("„%1“ ist keine lesbare Liste von Kalendereinträgen. Ihre Einträge wurden nicht verändert.")
                             .arg(QDir::toNativeSeparators(fileName));
    MvRequestHandler::current().report(tr("Kalendereinträge"), withReason(text, reason), asker);
}

void MvDiskAccessRequest::writeCalendarEntriesFileFailed(const QString &fileName, const QString &reason, QObject *asker)
{
    const QString text =
        tr("Die Kalendereinträge ließen sich nicht in „%1“ sichern.").arg(QDir::toNativeSeparators(fileName));
    MvRequestHandler::current().report(tr("Kalendereinträge"), withReason(text, reason), asker);
}

void MvDiskAccessRequest::readFotoFailed(const QString &fileName, QObject *asker)
{
    const QString text = tr("„%1“ ist kein Foto, das gelesen werden kann.").arg(QDir::toNativeSeparators(fileName));
    MvRequestHandler::current().report(tr("Foto"), text, asker);
}

void MvDiskAccessRequest::takeFotosFailed(const QStringList &texts, QObject *asker)
{
    if (texts.isEmpty())
        return;
    QStringList shown = texts.mid(0, mostTexts);
    if (shown.size() < texts.size())
        shown.append(tr("… und %n weitere Fotos.", nullptr, int(texts.size() - shown.size())));
    MvRequestHandler::current().report(tr("Foto"), shown.join(u"\n\n"_s), asker);
}
