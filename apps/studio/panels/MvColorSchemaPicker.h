// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchema.h"

#include <QListWidget>

/// Colour schemas as swatches with their names: the pages' own colours, then what the registry offers, the user's
/// schemas first. A hidden schema that is marked is shown, too.
class MvColorSchemaPicker : public QListWidget
{
    Q_OBJECT

public:
    explicit MvColorSchemaPicker(QWidget *parent = nullptr);

    /// Offers the registered schemas as they are now, with own colours before them, and marks one. Emits nothing.
    void showSchemata(const MvCalendariumColorSchema &marked, const QList<MvCalendariumColorSchema> &ownColors);

    /// What a row shows; invalid ones for a row out of range. Own colours have no id.
    MvCalendariumColorSchema schema(int row) const { return m_tiles.value(row).schema; }
    MvCalendariumColorSchemaID id(int row) const { return m_tiles.value(row).id; }

    /// The registered schema that looks like this one: the grid may be on or off, and lines that nobody sees do not
    /// count. An invalid id for own colours.
    static MvCalendariumColorSchemaID registeredId(const MvCalendariumColorSchema &schema);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose a schema of the list.
    void colorSchemaChosen(const MvCalendariumColorSchema &schema);

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Tile
    {
        MvCalendariumColorSchema schema;
        MvCalendariumColorSchemaID id;
        QString name;

        bool operator==(const Tile &) const = default;
    };

    static QList<Tile> tilesOf(const MvCalendariumColorSchemaID &marked,
                               const QList<MvCalendariumColorSchema> &ownColors);
    void setTiles(const QList<Tile> &tiles);
    QIcon swatch(const MvCalendariumColorSchema &schema) const;
    bool hasOwnColors() const;
    int rowsFor(int tiles) const;
    void adaptHeight();
    void onRowChanged(int row);

    QList<Tile> m_tiles; // one per row
    bool m_isMarking = false;
};
