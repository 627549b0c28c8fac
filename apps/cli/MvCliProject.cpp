// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCliProject.h"

#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvProjectFile.h"
#include "plain/MvCliValues.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

using namespace Qt::StringLiterals;

MvCliProject MvCliProject::read(const MvCliValues &values, QTextStream &hints)
{
    const QFileInfo file(values.text(u"project"_s));
    const MvProjectFile::Content content = MvProjectFile::read(file);
    for (const QString &note : content.notes)
        hints << note << '\n';
    MvCliProject project;
    project.error = content.error;
    project.document = content.document;
    project.file = file;
    project.entries = content.entries;
    return project;
}

QString MvCliProject::missingFoto(const QString &path)
{
    return QCoreApplication::translate("MvCliProject", "Foto fehlt oder ist nicht lesbar: %1 (%2)")
        .replace(u"%2"_s, MvImageLoader::instance().error(QFileInfo(path)))
        .replace(u"%1"_s, path);
}
