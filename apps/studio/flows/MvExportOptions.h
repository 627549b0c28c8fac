// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPressSettings.h"
#include "MvProject/MvSheetSettings.h"

#include <QList>
#include <QString>

/// What is to be exported, and where to.
struct MvExportOptions
{
    enum class Kind {
        Pdf,
        Png,
    };

    Kind kind = Kind::Pdf;
    QString target;           // absolute: the PDF, or the pattern for the files of the pictures
    QList<int> pages;         // counted from 0
    int dpi = 300;            // of pictures
    double bleed = 0;         // tenths of a millimetre
    QString press;            // whose inks a PDF is made for: a name of MvPressProfile; empty for a screen
    MvPressSettings forPress; // the rest of what a print shop expects, without the profile
    MvSheetSettings sheets;   // of a PDF
};
