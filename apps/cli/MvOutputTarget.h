#pragma once

#include "MvProject/MvExportResult.h"

#include <QCoreApplication>
#include <QString>

class MvPageSource;

/// A file, or a pattern for files, that a calendar is to be written to; its suffix says what it becomes.
class MvOutputTarget
{
    Q_DECLARE_TR_FUNCTIONS(MvOutputTarget)

public:
    explicit MvOutputTarget(const QString &path);

    /// What is wrong with the name itself, for these pages; empty when nothing is.
    QString nameError(const MvPageSource &pages) const;
    /// What keeps a file of that name from being written, as far as it can be told beforehand; empty when nothing does.
    QString placeError() const;

    MvExportResult write(const MvPageSource &pages, int dpi) const;

private:
    QString m_path;
    QString m_suffix; // lower case
};
