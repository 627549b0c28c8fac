// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/MvPageTemplate.h"
#include "MvProject/MvTemplateStyle.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class MvPageTemplateRegistry;
struct MvTemplateDesign;
extern template class MVPROJECT_EXPORT MvSingleton<MvPageTemplateRegistry>;

/// All templates of pages: the shipped ones of `templates/*.xml`, then those of the same folder in the user's data
/// folder. One of the user's with the id of another one is left out with a warning; so is one with a mistake.
///
/// A template is asked for in the style of the calendar's theme (MvCalendarTheme::style()); MvThemeApplication does so
/// for a document.
class MVPROJECT_EXPORT MvPageTemplateRegistry : public MvSingleton<MvPageTemplateRegistry>
{
    Q_DECLARE_TR_FUNCTIONS(MvPageTemplateRegistry)

public:
    /// Reads the files.
    MvPageTemplateRegistry();
    ~MvPageTemplateRegistry();

    /// The template of an id in the style; an invalid one when there is none.
    MvPageTemplate findTemplate(const QString &id, const MvTemplateStyle &style = {}) const;
    /// In the order of the files, shipped ones first.
    QList<MvPageTemplate> templates(const MvTemplateStyle &style = {}) const;
    /// Those for pages of the kind.
    QList<MvPageTemplate> templates(MvPageKind kind, const MvTemplateStyle &style = {}) const;

    /// How many photos the template has room for on a page of the format.
    static int fotoCount(const MvPageTemplate &pageTemplate, const MvPageFormat &format);
    /// Words of files and of the command line: "month", "cover", "free", "back".
    static QString kindName(MvPageKind kind);

private:
    void read(const QFileInfo &file);
    const MvTemplateDesign *find(const QString &id) const;

    std::unique_ptr<QList<MvTemplateDesign>> m_designs;
};
