#pragma once

#include "MvCore/MvSingleton.h"
#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QIcon>
#include <QString>

class MvIconRegistry;
extern template class MVGUIWIDGETS_EXPORT MvSingleton<MvIconRegistry>;

/// The icons of the application by name: "ico_common_plus_grey". They are SVG files in one colour, drawn in the text
/// colour of the palette.
class MVGUIWIDGETS_EXPORT MvIconRegistry : public MvSingleton<MvIconRegistry>
{
public:
    MvIconRegistry();
    ~MvIconRegistry() override;

    /// A null icon for an unknown name.
    QIcon icon(const QString &name) const;
};
