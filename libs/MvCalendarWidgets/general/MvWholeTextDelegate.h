// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QStyledItemDelegate>

/// Edits short texts of a list: a double click marks the whole text, not the word under it.
///
/// The first click opens the editor, so that the second one meets it and not the list.
class MVGUIWIDGETS_EXPORT MvWholeTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    bool eventFilter(QObject *editor, QEvent *event) override;
};
