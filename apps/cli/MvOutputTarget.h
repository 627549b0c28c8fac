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

    /// What keeps the target from being written, as far as it can be told beforehand; empty when nothing does.
    QString error(const MvPageSource &pages) const;

    MvExportResult write(const MvPageSource &pages, int dpi) const;

private:
    QString m_path;
    QString m_suffix; // lower case
};
