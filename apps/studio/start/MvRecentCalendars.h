// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/MvPictureList.h"

#include <QHash>
#include <QSet>

class MvScreenFotos;

/// The calendars that were opened last, with their first pages; those whose files are gone are left out.
class MvRecentCalendars : public MvPictureList
{
    Q_OBJECT

public:
    static constexpr int most = 5;

    explicit MvRecentCalendars(QWidget *parent = nullptr);
    ~MvRecentCalendars() override;

    /// Looks which files there are, and has their pictures made anew.
    void look();

Q_SIGNALS:
    void chosen(const QString &path);

private:
    QImage makePage(int row, const QSize &sheet, double ratio);
    void onFotoLoaded(const QString &path);

    MvScreenFotos *m_fotos;
    QHash<QString, QSet<int>> m_rowsOfFotos; // the photos of the first pages
};
