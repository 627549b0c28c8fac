// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class MvPdfFile;
class MvPressProfile;

/// What a file says of itself so that shops take it as PDF/X-4: made for one printing condition, with its profile
/// inside, and without traps.
class MvPdfX
{
public:
    /// The object of the output intent.
    static int addOutputIntent(MvPdfFile &file, const MvPressProfile &profile);
    /// Entries of the information dictionary.
    static QByteArray information(const QDateTime &date);
    /// Descriptions for the metadata: a file of the same pages and date has the same identity.
    static QString metadata(const QDateTime &date, const QByteArray &hashOfPages);
};
