// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfSheets.h"

#include "MvCore/MvLoadedModule.h"

MvOutcome MvPdfSheets::write(QFile &from, QFile &to, const MvSheetPlan &plan, const QStringList &names,
                             const MvLocale &language)
{
    static MvLoadedModule module("MvPdf");
    using Lay = void(QFile &, QFile &, const MvSheetPlan &, const QStringList &, const MvLocale &, MvOutcome &);
    MvOutcome outcome;
    if (auto *lay = module.function<Lay>("mvLayPdfOnSheets", &outcome.error))
        lay(from, to, plan, names, language, outcome);
    return outcome;
}
