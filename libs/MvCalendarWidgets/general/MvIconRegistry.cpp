// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvIconRegistry.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvGUIWidgets/MvIconEngine.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

template class MvSingleton<MvIconRegistry>;

namespace {

constexpr qint64 largestIcon = 256LL * 1024; // bytes; a file beyond is no icon
const QString embeddedFolder = u":/mvcalendar/icons"_s;

/// Whether the root element says so; asked first, for QSvgRenderer complains loudly about anything else.
bool looksLikeSvg(const QByteArray &data)
{
    QXmlStreamReader reader(data);
    if (!reader.readNextStartElement() || reader.name() != "svg"_L1)
        return false;
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

QByteArray readSvg(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestIcon)
        return {};
    const QByteArray data = file.readAll();
    return looksLikeSvg(data) ? data : QByteArray();
}

} // namespace

MvIconRegistry::MvIconRegistry() = default;
MvIconRegistry::~MvIconRegistry() = default;

QByteArray MvIconRegistry::svg(const QString &name) const
{
    const auto known = m_svgs.constFind(name);
    if (known != m_svgs.constEnd())
        return *known;
    const QString relativePath = u"icons/%1.svg"_s.arg(name);
    QByteArray data = readSvg(MvDirectoryConfig::instance().resource(relativePath).filePath());
    if (data.isEmpty())
        data = readSvg(u"%1/%2.svg"_s.arg(embeddedFolder, name));
    m_svgs.insert(name, data);
    return data;
}

QIcon MvIconRegistry::icon(const QString &name) const
{
    const QByteArray data = svg(name);
    return data.isEmpty() ? QIcon() : QIcon(new MvIconEngine(name, data));
}

QStringList MvIconRegistry::names() const
{
    QStringList names = QDir(embeddedFolder).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(4);
    return names;
}

QIcon MvIconRegistry::applicationIcon() const
{
    QIcon result;
    const QDir folder(embeddedFolder + u"/app"_s);
    for (const QFileInfo &file : folder.entryInfoList({u"*.png"_s}, QDir::Files))
        result.addFile(file.filePath());
    return result;
}
