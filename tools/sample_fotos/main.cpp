// SPDX-License-Identifier: LGPL-2.1-or-later
// Paints the pictures of the sample calendar: make_sample_fotos FOLDER [NAME...]

#include "Jpeg.h"
#include "Motifs.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Picture
{
    QString name;
    QString taken; // in ISO form
    QImage (*paint)();
};

const QList<Picture> &pictures()
{
    static const QList<Picture> list = {
        {u"winterhuette"_s, u"2026-01-18T16:52:10"_s, Motifs::winterHut},
        {u"kinderbild"_s, u"2026-02-14T10:20:31"_s, Motifs::childrensDrawing},
        {u"morgennebel"_s, u"2026-03-22T06:41:05"_s, Motifs::morningMist},
        {u"kirschbluete"_s, u"2026-04-19T11:03:44"_s, Motifs::cherryBlossom},
        {u"mohnwiese"_s, u"2026-05-30T13:15:27"_s, Motifs::poppyMeadow},
        {u"maedchen"_s, u"2026-05-24T15:48:02"_s, Motifs::girlWithHat},
        {u"ballone"_s, u"2026-06-21T05:58:19"_s, Motifs::balloons},
        {u"lavendel"_s, u"2026-07-04T20:37:50"_s, Motifs::lavender},
        {u"segeln"_s, u"2026-07-25T12:30:08"_s, Motifs::sailing},
        {u"leuchtturm"_s, u"2026-08-12T21:05:36"_s, Motifs::lighthouse},
        {u"bergsee"_s, u"2026-09-13T06:49:12"_s, Motifs::mountainLake},
        {u"grossvater"_s, u"2026-09-27T14:22:40"_s, Motifs::grandfather},
        {u"birkenwald"_s, u"2026-10-17T10:11:55"_s, Motifs::birchWood},
        {u"stadt"_s, u"2026-11-20T18:34:21"_s, Motifs::cityByNight},
        {u"katze"_s, u"2026-12-06T17:10:03"_s, Motifs::catAtWindow},
        {u"polarlicht"_s, u"2026-12-28T22:46:38"_s, Motifs::northernLights},
    };
    return list;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(1));
    if (arguments.size() < 2 || !folder.mkpath(u"."_s)) {
        std::fputs("usage: make_sample_fotos FOLDER [NAME...]\n", stderr);
        return 2;
    }
    const QStringList names = arguments.mid(2);
    for (const Picture &picture : pictures()) {
        if (!names.isEmpty() && !names.contains(picture.name))
            continue;
        const QString path = folder.filePath(picture.name + u".jpg"_s);
        if (!Jpeg::write(picture.paint(), QDateTime::fromString(picture.taken, Qt::ISODate), path)) {
            std::fprintf(stderr, "make_sample_fotos: %s\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}
