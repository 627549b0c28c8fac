// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoFacts.h"

#include "MvFoto/MvExif.h"
#include "MvFoto/MvGuardedImageReader.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

MvFotoFacts MvFotoFacts::of(const QFileInfo &file)
{
    MvGuardedImageReader reader(file);
    const MvExif exif = reader.exif();
    MvFotoFacts facts{reader.format(), reader.size(), exif.captured(), reader.error(), exif.description()};
    if (facts.format.isEmpty())
        return facts;
    if (facts.size.isEmpty()) {
        reader.read({}); // which says why
        facts.error = reader.error();
    }
    if (!facts.captured.isValid())
        facts.captured = capturedByName(file.fileName());
    return facts;
}

QDateTime MvFotoFacts::capturedByName(const QString &fileName)
{
    // not within a longer number, such as a camera's counter
    static const QRegularExpression pattern(
        uR"((?<!\d)((?:19|20)\d\d)([-_.]?)(\d\d)\2(\d\d))"
        uR"((?:(?:[-_ T.]| at |, )?(\d\d)[-_.:]?(\d\d)[-_.:]?(\d\d)(?!\d{4})|(?!\d)))"_s);
    const QRegularExpressionMatch match = pattern.match(fileName);
    const auto number = [&match](int group) { return match.capturedView(group).toInt(); };
    const QDate date(number(1), number(3), number(4));
    if (!date.isValid())
        return {};
    const QTime time(number(5), number(6), number(7));
    return QDateTime(date, time.isValid() ? time : QTime(0, 0), Qt::UTC);
}
