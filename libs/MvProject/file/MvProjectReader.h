// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvProjectFile.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QList>

/// Reads one project file; used by MvProjectFile.
class MvProjectReader
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectReader)

public:
    explicit MvProjectReader(const QFileInfo &file)
        : m_file(file)
    {}

    MvProjectFile::Content read();

private:
    void readRoot(const QDomElement &root);
    void readPages(const QDomElement &root);
    MvPageFormat readPaper(const QDomElement &root);
    MvDateRange readRange(const QDomElement &root);
    MvCalendarPage readPage(const QDomElement &element);
    void readAppearance(const QDomElement &element, MvCalendarPage &page);
    void readContent(const QDomElement &element, MvCalendarPage &page);
    MvFotoFrame readFoto(const QDomElement &element);
    QMap<QDate, MvFotoFrame> readSpareFotos(const QDomElement &root);
    QDate month(const QDomElement &element, const QString &name);

    void fail(const QDomElement &place, const QString &message);
    void note(const QDomElement &place, const QString &message);
    /// Tells of an attribute that holds another number than was taken.
    void noteChanged(const QDomElement &place, const QString &attribute, double taken);
    QString placed(const QDomElement &place, const QString &message) const;
    /// What to do when the file cannot be used.
    QString advice() const;

    QFileInfo m_file;
    MvProjectFile::Content m_content;
};
