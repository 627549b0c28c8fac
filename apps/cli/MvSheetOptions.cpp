// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvSheetOptions.h"

#include "MvProject/MvPageFormat.h"
#include "plain/MvCliArguments.h"
#include "plain/MvCliValues.h"
#include "plain/MvNearMiss.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPerSheet = 16;
constexpr double tenths = 10.0;      // of a millimetre
constexpr double mostMargin = 40.0;  // millimetres
constexpr double mostOverlap = 60.0; // millimetres

} // namespace

QList<MvCliOption> MvSheetOptions::options()
{
    return {{u"tiles"_s, tr("PAPIER"),
             tr("große Seiten im PDF als Kacheln auf diesem Papier (A4, Letter, 200x300), zum Zusammenkleben")},
            {u"overlap"_s, u"MM"_s, tr("mit --tiles: so weit überlappen sie (10)")},
            {u"n-up"_s, u"2|4"_s, tr("so viele Seiten im PDF auf ein Blatt, bis 16")},
            {u"sheet"_s, tr("PAPIER"), tr("mit --n-up: das Blatt (A4)")},
            {u"cut-stack"_s,
             {},
             tr("mit --n-up: mit Schnittmarken, und so, dass die geschnittenen Stapel aufeinandergelegt in der "
                "richtigen Folge sind")},
            {u"two-sided"_s, {}, tr("mit --cut-stack: auf Vorder- und Rückseite")},
            {u"sheet-margin"_s, u"MM"_s, tr("mit --tiles und --n-up: was der Drucker am Rand weiß lässt (5)")}};
}

void MvSheetOptions::checkTogether(MvCliValues &values, const MvCliArguments &arguments)
{
    for (const auto &[name, needed] :
         {std::pair{u"overlap"_s, u"tiles"_s}, std::pair{u"sheet"_s, u"n-up"_s}, std::pair{u"cut-stack"_s, u"n-up"_s},
          std::pair{u"two-sided"_s, u"cut-stack"_s}}) {
        if (values.has(name) && !values.has(needed))
            values.setError(tr("--%1 gehört zu --%2").arg(name, needed));
    }
    const bool hasSheets = values.has(u"tiles"_s) || values.has(u"n-up"_s);
    if (values.has(u"sheet-margin"_s) && arguments.line(u"sheet-margin"_s) == 0 && !hasSheets)
        values.setError(tr("--sheet-margin gehört zu --tiles oder --n-up"));
    values.exclude(u"tiles"_s, u"n-up"_s);
    values.exclude(u"tiles"_s, u"press"_s);
    values.exclude(u"n-up"_s, u"press"_s);
}

QSizeF MvSheetOptions::paper(MvCliValues &values, const QString &name, const QString &defaultName)
{
    const QString text = values.text(name, defaultName);
    const MvPageFormat format = MvPageFormat::fromName(text);
    if (!format.isValid())
        values.setError(tr("--%1 „%2“: erlaubt sind %3 und Maße in Millimetern wie 200x300")
                            .arg(name, text, MvPageFormat::names().join(u", "_s)) +
                        MvNearMiss::describe(text, MvPageFormat::names()));
    return format.trimSize();
}

MvSheetSettings MvSheetOptions::settings(MvCliValues &values, const MvCliArguments &arguments)
{
    checkTogether(values, arguments);
    MvSheetSettings settings;
    const bool isTiled = values.has(u"tiles"_s);
    if (!isTiled && !values.has(u"n-up"_s))
        return settings;
    settings.kind = isTiled ? MvSheetSettings::Kind::Tiles : MvSheetSettings::Kind::Several;
    settings.paper = isTiled ? paper(values, u"tiles"_s, {}) : paper(values, u"sheet"_s, u"A4"_s);
    settings.margin = values.millimetres(u"sheet-margin"_s, mostMargin, settings.margin / tenths) * tenths;
    settings.overlap = values.millimetres(u"overlap"_s, mostOverlap, settings.overlap / tenths) * tenths;
    settings.perSheet = values.number(u"n-up"_s, 2, mostPerSheet, settings.perSheet);
    settings.isForCutting = values.has(u"cut-stack"_s);
    settings.isTwoSided = settings.isForCutting && values.has(u"two-sided"_s);
    return settings;
}
