// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvDraggedFotos.h"

#include "common/MvDraggedDates.h"

#include "MvFoto/MvImageLoader.h"
#include "MvFoto/MvMediaFormat.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString frameFormat = u"application/x-mvcalendar-frame"_s;

constexpr qsizetype mostLooks = 20; // files that are looked into while something is dragged

bool isFoto(const QString &path)
{
    return !MvImageLoader::format(QFileInfo(path)).isEmpty();
}

} // namespace

QString MvDraggedFotos::nameFilter()
{
    return tr("Fotos (%1)").arg(MvMediaFormat::namePatterns());
}

QStringList MvDraggedFotos::paths(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data->urls()) {
        if (const QString path = url.toLocalFile(); !path.isEmpty() && !MvDraggedDates::isDates(path))
            paths.append(QFileInfo(path).absoluteFilePath());
    }
    return paths;
}

bool MvDraggedFotos::areIn(const QMimeData *data)
{
    const QStringList looked = paths(data).mid(0, mostLooks);
    return std::any_of(looked.begin(), looked.end(),
                       [](const QString &path) { return QFileInfo(path).isDir() || isFoto(path); });
}

QString MvDraggedFotos::first(const QMimeData *data)
{
    const QStringList all = paths(data).mid(0, mostLooks);
    const auto found = std::find_if(all.begin(), all.end(), isFoto);
    return found == all.end() ? QString() : *found;
}

QMimeData *MvDraggedFotos::createData(const QStringList &paths, const std::optional<std::pair<int, int>> &frame)
{
    auto *data = new QMimeData;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data->setUrls(urls);
    if (frame)
        data->setData(frameFormat, QByteArray::number(frame->first) + ' ' + QByteArray::number(frame->second));
    return data;
}

std::optional<std::pair<int, int>> MvDraggedFotos::frame(const QMimeData *data)
{
    const QList<QByteArray> numbers = data->data(frameFormat).split(' ');
    if (numbers.size() != 2)
        return {};
    return std::pair(numbers.first().toInt(), numbers.last().toInt());
}
