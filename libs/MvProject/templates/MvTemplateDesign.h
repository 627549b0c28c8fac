// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/MvPageTemplate.h"
#include "MvProject/MvTemplateRule.h"
#include "MvProject/MvTemplateStyle.h"
#include "MvXML/MvLocalizedText.h"

#include <QList>
#include <QMap>
#include <QString>

/// A template as a file describes it: the slots for each shape of paper. Dressed in a style it becomes a template of
/// pages. A value that MvTemplateReader fills.
struct MvTemplateDesign
{
    QString id;
    MvPageKind kind = MvPageKind::Month;
    MvLocalizedText name;
    bool isBoundAtFoot = false; // of pages that hang above another one, where that is bound at its head
    QMap<MvPageFormat::Shape, QList<MvTemplateRule>> divisions; // every shape has one

    MvPageTemplate dressed(const MvTemplateStyle &style) const;

    /// Words of files: "month", "cover", "free", "back".
    static QString kindName(MvPageKind kind);
    static std::optional<MvPageKind> kindFromName(const QString &name);
};
