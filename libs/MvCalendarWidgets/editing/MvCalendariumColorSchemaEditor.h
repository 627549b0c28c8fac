// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QWidget>

class MvCalendariumColorSchemaModel;
class MvColorDelegate;
class MvColorSelectionButton;
class MvTableView;
class QCheckBox;

/// The colours of a calendarium as a table, with switches for what goes together and for the grid.
class MVCALENDARWIDGETS_EXPORT MvCalendariumColorSchemaEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendariumColorSchemaEditor(QWidget *parent = nullptr);

    /// Emits nothing. An appearance equal to the present one changes nothing.
    void setAppearance(const MvCalendariumAppearance &appearance);
    const MvCalendariumAppearance &appearance() const { return m_appearance; }
    const MvCalendariumColorSchema &colorSchema() const { return m_appearance.colorSchema(); }
    const MvCalendariumLayoutSchema &layoutSchema() const { return m_appearance.layoutSchema(); }
    bool rendererShowsDays() const { return m_appearance.rendererShowsDays(); }
    bool haveSameColors(const MvCalendarCellType &typeA, const MvCalendarCellType &typeB) const;

    /// Fixes the height of the table by its rows, for a panel that scrolls as a whole.
    void fixTableHeight();
    /// From now on the table is just as high as its rows, without a scroll bar of its own; what is around it scrolls.
    void showAllRows();

Q_SIGNALS:
    void schemaChanged(const MvCalendariumColorSchema &schema);
    void vacationsLikeSaturdaysChangedByUser(bool on);
    void holidaysLikeSundaysChangedByUser(bool on);

public Q_SLOTS:
    /// Takes the schema over from the table and reports it.
    void updateChangedSchema();

private:
    MvTableView *createTableView();
    MvColorDelegate *createDelegate(MvTableView *view) const;
    QCheckBox *createDuplicateSaturdayToVacationBox();
    QCheckBox *createDuplicateSundayToHolidayBox();
    QCheckBox *createParityCheckBox();
    QCheckBox *createShowGridCheckBox();
    MvColorSelectionButton *createGridColorEdit();
    void setupSaturdayToVacationBox();
    void setupSundayToHolidayBox();
    void setupParityBox();
    void setupGridBoxes();

    MvCalendariumAppearance m_appearance;
    MvCalendariumColorSchemaModel *m_model;
    MvTableView *m_tableView;
    QCheckBox *m_vacationBox;
    QCheckBox *m_holidayBox;
    QCheckBox *m_parityBox;
    QCheckBox *m_gridBox;
    MvColorSelectionButton *m_gridColorButton;
};
