// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QAbstractTableModel>
#include <QList>

#include <optional>

class MvCalendariumColorCellInfo;

/// The colours of an appearance as a table to edit: a row per cell type that its renderer uses, with its name,
/// background and text colour. While weeks alternate, cells that belong to a week have a row for each kind of week.
///
/// A changed schema is not entered into the registry of schemas: an appearance writes an unregistered one whole, and
/// who keeps it for further calendars registers it when the editing is done.
class MVCALENDARWIDGETS_EXPORT MvCalendariumColorSchemaModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TypeColumn = 0, BackgroundColumn = 1, TextColumn = 2 };
    static constexpr int numberOfColumns = 3;
    /// Below this ratio of text to background a row carries a warning.
    static constexpr double recommendedContrast = 4.5;

    explicit MvCalendariumColorSchemaModel(QObject *parent = nullptr);

    /// Without an appearance there are no rows. Emits what has changed of the states below, but no schemaChanged().
    void setAppearance(const MvCalendariumAppearance &appearance);
    const MvCalendariumAppearance &appearance() const { return m_appearance; }
    const MvCalendariumColorSchema &colorSchema() const { return m_appearance.colorSchema(); }

    MvCalendarCellType cellType(int row) const;
    /// The weeks that the row's colours hold for.
    MvParityLogic parity(int row) const;
    /// Of the row's text to its background, on white paper; where weeks do not alternate, the lower of both.
    double contrast(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Colours are QColor; their names go to tool tips and screen readers.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Takes a valid colour. Saturdays and Sundays take along what is treated like them; vacations or holidays that get
    /// a colour of their own are not treated like them any longer, those that get the same colours are.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

public Q_SLOTS:
    /// Switching off gives vacations the colours back that they had before, or a slightly different background when
    /// these would be alike, too: the state is always that of the colours.
    void setTreatVacationsLikeSaturdays(bool on);
    void setTreatHolidaysLikeSundays(bool on);
    /// Switching on gives odd weeks the colours back that they had before, or a slightly different background at first;
    /// switching off gives them those of even weeks.
    void setUseParityLogic(bool on);
    void enableGrid(bool on);
    void setUserGridColor(const QColor &color);

Q_SIGNALS:
    /// The schema was edited; comes after the signals of the states.
    void schemaChanged(const MvCalendariumColorSchema &schema);
    void vacationsLikeSaturdaysChanged(bool on);
    void holidaysLikeSundaysChanged(bool on);
    void parityDifferenceChanged(bool on);
    void gridEnabledChanged(bool on);
    void gridColorChanged(const QColor &color);

private:
    struct Row
    {
        MvCalendarCellType type;
        MvParityLogic parity;
        bool operator==(const Row &) const = default;
    };
    struct States
    {
        bool vacationsLikeSaturdays = false;
        bool holidaysLikeSundays = false;
        bool parities = false;
        bool gridEnabled = false;
        QColor gridColor = Qt::black;
        bool operator==(const States &) const = default;
    };
    using SavedSchema = std::optional<MvCalendariumColorSchema>;

    States statesOf(const MvCalendariumColorSchema &schema) const;
    bool isCoupled(const MvCalendarCellType &follower) const;
    bool hasCell(const QModelIndex &index) const { return index.isValid() && index.row() < m_rows.size(); }
    QList<Row> createRows() const;
    bool alternates(const MvCalendarCellType &type) const;
    QString rowName(const Row &row) const;
    MvCalendarCellColorKey key(const QModelIndex &index) const;
    MvCalendariumColorCellInfo cellColors(const Row &row) const;
    QString contrastWarning(int row) const;
    QVariant colorData(const QModelIndex &index, int role) const;

    void copyToFollowers(MvCalendariumColorSchema &schema, const MvCalendarCellType &source) const;
    MvCalendariumColorSchema withCoupling(const MvCalendarCellType &follower, bool on, SavedSchema &before) const;
    MvCalendariumColorSchema withOddWeeksFrom(const MvCalendariumColorSchema &source) const;
    MvCalendariumColorSchema withTintedOddWeeks() const;
    void showRows();
    void reportStates(const States &states);
    /// Takes over what an edit led to. Whether days are treated alike is what the schema says.
    void apply(const MvCalendariumColorSchema &schema, States states);

    MvCalendariumAppearance m_appearance;
    QList<Row> m_rows;
    States m_states;
    bool m_hasHeadPerDay = false;
    SavedSchema m_beforeVacations; // what switching back brings back
    SavedSchema m_beforeHolidays;
    SavedSchema m_beforeParities;
};
