// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <optional>
#include <utility>

class QMimeData;

/// The photos and folders in what is dragged over the program or asked for, from a file manager or from its own tray.
class MvDraggedFotos
{
    Q_DECLARE_TR_FUNCTIONS(MvDraggedFotos)

public:
    /// For file dialogs: the endings of photos.
    static QString nameFilter();
    /// Whether there is a folder, or a file that is a photo by its first bytes: enough to say that a drop is welcome.
    static bool areIn(const QMimeData *data);
    /// All local files and folders, absolute, but those of dates (MvDraggedDates); what of them is no photo is for
    /// those to tell who read them.
    static QStringList paths(const QMimeData *data);
    /// The first photo among the files; empty when there is none.
    static QString first(const QMimeData *data);

    /// Photos for a drag of the program's own, with the frame (page and element) that the only one stands in.
    static QMimeData *createData(const QStringList &paths, const std::optional<std::pair<int, int>> &frame = {});
    /// The frame of the program's own drag.
    static std::optional<std::pair<int, int>> frame(const QMimeData *data);
};
