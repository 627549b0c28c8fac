#pragma once

#include <QFileInfo>
#include <QList>
#include <QString>

/// What became of an export. Every file named is complete; a file that could not be written is as it was before.
struct MvExportResult
{
    QString error; // for a person; empty when everything was written
    QList<QFileInfo> files;

    bool isOk() const { return error.isEmpty(); }
};
