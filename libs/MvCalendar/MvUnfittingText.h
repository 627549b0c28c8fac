#pragma once

#include <QDate>
#include <QRectF>
#include <QString>

/// A text of a day that had no room in its cell: it was shortened, or one of its words is wider than the cell.
struct MvUnfittingText
{
    QDate date;
    QString text;
    QRectF rect; // of the cell, in page units

    bool operator==(const MvUnfittingText &) const = default;
};
