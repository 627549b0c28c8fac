// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/MvPictureList.h"
#include "panels/MvCalendarKind.h"

/// The kinds of calendars as pictures of a month of each.
class MvCalendarKindChooser : public MvPictureList
{
    Q_OBJECT

public:
    explicit MvCalendarKindChooser(const QSize &pictureSize, QWidget *parent = nullptr);

    MvCalendarKind kind() const { return kindOf(qMax(0, currentRow())); }
    void setKind(MvCalendarKind kind) { setCurrentRow(int(kind)); }
    static MvCalendarKind kindOf(int row) { return MvCalendarKind(row); }

private:
    static QImage makePage(int row, const QSize &sheet, double ratio);
};
