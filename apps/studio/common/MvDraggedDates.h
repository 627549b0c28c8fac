// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QStringList>

class QMimeData;

/// Files of dates that are dropped anywhere on a window: calendars, tables, lists of entries and visiting cards, alone
/// or among photos. Whoever takes the photos need not know of them.
///
/// It looks at the drops of the window's widgets before they do.
class MvDraggedDates : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window.
    explicit MvDraggedDates(QWidget *window);

    /// By their names.
    static QStringList paths(const QMimeData *data);
    static bool isDates(const QString &path);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// After the drop: whatever else it held has been taken by then.
    void dropped(const QStringList &files, bool areWithFotos);

private:
    QWidget *m_window;
};
