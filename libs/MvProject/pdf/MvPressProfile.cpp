// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPressProfile.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvRegularFile.h"
#include "MvPaint/MvPrintableText.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <memory>

#include <lcms2.h>

using namespace Qt::StringLiterals;

namespace {

struct Shipped
{
    QString name;
    QString file;
    QString condition;
    int inkLimit; // what shops ask for on that paper
};

const QList<Shipped> &shipped()
{
    static const QList<Shipped> all{{u"fogra39"_s, u"FOGRA39L_coated.icc"_s, u"FOGRA39"_s, 330},
                                    {u"fogra29"_s, u"FOGRA29L_uncoated.icc"_s, u"FOGRA29"_s, 300},
                                    {u"gracol"_s, u"GRACoL_TR006_coated.icc"_s, u"CGATS TR 006"_s, 320}};
    return all;
}

/// The one of this name; null when there is none.
const Shipped *shippedAs(const QString &name)
{
    const auto known = std::find_if(shipped().cbegin(), shipped().cend(), [&](const Shipped &profile) {
        return profile.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return known == shipped().cend() ? nullptr : &*known;
}

struct Closed
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, Closed>;

QString descriptionOf(cmsHPROFILE profile)
{
    std::array<wchar_t, 256> text{};
    cmsGetProfileInfo(profile, cmsInfoDescription, "en", "US", text.data(), sizeof(text));
    return MvPrintableText::onOneLine(QString::fromWCharArray(text.data())).trimmed();
}

/// Four letters: "RGB ", "GRAY".
QString nameOf(cmsColorSpaceSignature space)
{
    QString name;
    for (int shift = 24; shift >= 0; shift -= 8)
        name += QChar(char16_t((quint32(space) >> quint32(shift)) & 0x7f));
    return name.trimmed();
}

} // namespace

QStringList MvPressProfile::names()
{
    QStringList names;
    for (const Shipped &known : shipped())
        names.append(known.name);
    return names;
}

/// A profile of that name in the folders that all programs look at; empty when there is none.
QString MvPressProfile::installed(const QString &name)
{
    QStringList folders =
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"color/icc"_s, QStandardPaths::LocateDirectory);
    folders +=
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icc"_s, QStandardPaths::LocateDirectory);
    QStringList found;
    for (const QString &folder : std::as_const(folders)) {
        QDirIterator files(folder, {u"*.icc"_s, u"*.icm"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            if (files.fileInfo().completeBaseName().compare(name, Qt::CaseInsensitive) == 0)
                found.append(files.filePath());
        }
        if (!found.isEmpty())
            break;
    }
    std::sort(found.begin(), found.end());
    return found.value(0);
}

QString MvPressProfile::fileOf(const QString &nameOrFile)
{
    if (const Shipped *known = shippedAs(nameOrFile))
        return MvDirectoryConfig::instance().resource(u"profiles/"_s + known->file).filePath();
    return QFileInfo::exists(nameOrFile) ? nameOrFile : installed(nameOrFile);
}

MvPressProfile::Loaded MvPressProfile::load(const QString &nameOrFile)
{
    Loaded loaded;
    const QString path = fileOf(nameOrFile);
    if (const Shipped *known = shippedAs(nameOrFile)) {
        loaded.error = loaded.profile.read(path);
        loaded.profile.m_condition = known->condition;
        loaded.profile.m_isRegistered = true;
        loaded.profile.m_inkLimit = known->inkLimit;
        return loaded;
    }
    loaded.error = path.isEmpty()
                       ? tr("%1: ein solches Farbprofil gibt es nicht; möglich sind %2 oder eine Datei (.icc)")
                             .replace(u"%1"_s, nameOrFile)
                             .replace(u"%2"_s, names().join(u", "_s))
                       : loaded.profile.read(path);
    return loaded;
}

/// What is wrong with it, with the name of the file.
QString MvPressProfile::read(const QString &path)
{
    constexpr qint64 largest = 64 << 20; // bytes; profiles of presses have some two million
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(path));
    if (!opened.isOk())
        return u"%1: %2"_s.arg(QDir::toNativeSeparators(path), opened.error);
    QString error;
    if (opened.file->size() > largest)
        error = tr("die Datei ist zu groß für ein Farbprofil");
    else
        m_content = opened.file->readAll();
    if (error.isEmpty())
        error = check();
    if (!error.isEmpty())
        m_content.clear();
    return error.isEmpty() ? QString() : u"%1: %2"_s.arg(QDir::toNativeSeparators(path), error);
}

QString MvPressProfile::check()
{
    if (m_content.size() < qsizetype(sizeof(quint32)) ||
        qFromBigEndian<quint32>(m_content.constData()) > quint64(m_content.size())) // it begins with its size
        return tr("das ist kein Farbprofil (ICC), oder nur ein Teil davon");
    constexpr double newest = 5.0; // files for the press know profiles up to version 4
    const Profile profile(cmsOpenProfileFromMem(m_content.constData(), cmsUInt32Number(m_content.size())));
    if (!profile)
        return tr("das ist kein Farbprofil (ICC)");
    if (const cmsColorSpaceSignature space = cmsGetColorSpace(profile.get()); space != cmsSigCmykData)
        return tr("das ist ein Farbprofil für %1, nicht für den Druck mit Cyan, Magenta, Gelb und Schwarz (CMYK)")
            .arg(nameOf(space));
    if (cmsGetDeviceClass(profile.get()) != cmsSigOutputClass || cmsGetProfileVersion(profile.get()) >= newest)
        return tr("mit diesem Farbprofil lässt sich nicht drucken; nötig ist eines für die Ausgabe, Version 2 oder 4");
    // what a transformation needs must be there, and whole
    const Profile screen(cmsCreate_sRGBProfile());
    cmsHTRANSFORM transform = cmsCreateTransform(screen.get(), TYPE_RGB_8, profile.get(), TYPE_CMYK_8,
                                                 INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION);
    const Profile lab(cmsCreateLab4Profile(nullptr));
    cmsHTRANSFORM back =
        cmsCreateTransform(profile.get(), TYPE_CMYK_8, lab.get(), TYPE_Lab_DBL, INTENT_RELATIVE_COLORIMETRIC, 0);
    const bool isUsable = transform && back;
    for (cmsHTRANSFORM made : {transform, back}) {
        if (made)
            cmsDeleteTransform(made);
    }
    m_description = descriptionOf(profile.get());
    m_condition = m_description;
    return isUsable ? QString() : tr("das Farbprofil ist unvollständig oder beschädigt");
}
