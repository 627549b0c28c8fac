// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvWholeTextDelegate.h"

#include <QEvent>
#include <QLineEdit>

bool MvWholeTextDelegate::eventFilter(QObject *editor, QEvent *event)
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    if (line && event->type() == QEvent::MouseButtonDblClick) {
        line->selectAll();
        return true;
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}
