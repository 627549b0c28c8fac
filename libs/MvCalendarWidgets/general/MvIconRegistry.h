// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QByteArray>
#include <QHash>
#include <QIcon>
#include <QString>
#include <QStringList>

class MvIconRegistry;
extern template class MVGUIWIDGETS_EXPORT MvSingleton<MvIconRegistry>;

/// The icons of the application by name: "ico_common_plus_grey". They are SVG files in one colour, drawn in the text
/// colour of the palette (MvIconEngine). An icon is replaced by a file of the same name in a resource folder
/// (MvDirectoryConfig::resource(), "icons/<name>.svg"); one that is no SVG is passed over. For the GUI thread.
class MVGUIWIDGETS_EXPORT MvIconRegistry : public MvSingleton<MvIconRegistry>
{
public:
    MvIconRegistry();
    ~MvIconRegistry() override;

    /// A null icon for an unknown name.
    QIcon icon(const QString &name) const;
    /// The names of the shipped icons, sorted.
    QStringList names() const;
    /// The program's own icon in its colours, for windows and the about box.
    QIcon applicationIcon() const;

private:
    QByteArray svg(const QString &name) const;

    mutable QHash<QString, QByteArray> m_svgs; // as read; empty for an unknown name
};
