// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <vector>

/// A part of a page in the order in which it is read: "H1", "P", "Table", "TR", "TD", "Figure".
struct MvPdfElement
{
    QByteArray type;
    QByteArray attributes = {}; ///< a dictionary, or nothing
    QString whole = {};         ///< read instead of what is painted, unless empty
    QString longForm = {};      ///< of an abbreviation
    QString description = {};   ///< of a picture
    QString name = {};          ///< of a section
    QList<int> contents = {};   ///< numbers of what is marked in the page's content
    std::vector<MvPdfElement> parts = {};
};
