// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaEditor.h"

#include "MvCalendar/MvCalendariumColorSchemaModel.h"
#include "MvGUIWidgets/MvColorDelegate.h"
#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvTableView.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>

using namespace Qt::StringLiterals;

MvCalendariumColorSchemaEditor::MvCalendariumColorSchemaEditor(QWidget *parent)
    : QWidget(parent)
    , m_model(new MvCalendariumColorSchemaModel(this))
    , m_tableView(createTableView())
    , m_vacationBox(createDuplicateSaturdayToVacationBox())
    , m_holidayBox(createDuplicateSundayToHolidayBox())
    , m_parityBox(createParityCheckBox())
    , m_gridBox(createShowGridCheckBox())
    , m_gridColorButton(createGridColorEdit())
{
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_tableView, 0, 0, 1, 3);
    layout->addWidget(m_vacationBox, 1, 0, 1, 3);
    layout->addWidget(m_holidayBox, 2, 0, 1, 3);
    layout->addWidget(m_parityBox, 3, 0, 1, 3);
    layout->addWidget(m_gridBox, 4, 0);
    layout->addWidget(m_gridColorButton, 4, 1);
    layout->setColumnStretch(2, 1);
    setupSaturdayToVacationBox();
    setupSundayToHolidayBox();
    setupParityBox();
    setupGridBoxes();
    connect(m_model, &MvCalendariumColorSchemaModel::schemaChanged, this,
            &MvCalendariumColorSchemaEditor::updateChangedSchema);
}

MvTableView *MvCalendariumColorSchemaEditor::createTableView()
{
    auto *view = new MvTableView(this);
    view->setObjectName(u"tableView"_s);
    view->setAccessibleName(tr("Farben der Felder"));
    view->setModel(m_model);
    view->setCornerButtonEnabled(false);
    view->setEditTriggers(QAbstractItemView::AllEditTriggers);
    view->setSelectionMode(QAbstractItemView::NoSelection);
    view->setTextElideMode(Qt::ElideNone);
    view->setSortingEnabled(false);
    view->setTabKeyNavigation(false); // Tab goes on to the boxes, arrow keys go through the cells
    view->setProperty("cssstyle", u"MvCalendariumColorSchemaEditorTable"_s);
    view->setItemDelegateForColumn(MvCalendariumColorSchemaModel::BackgroundColumn, createDelegate(view));
    view->setItemDelegateForColumn(MvCalendariumColorSchemaModel::TextColumn, createDelegate(view));

    QHeaderView *columns = view->horizontalHeader();
    columns->setSectionsClickable(false);
    columns->setSectionResizeMode(MvCalendariumColorSchemaModel::TypeColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(MvCalendariumColorSchemaModel::BackgroundColumn, QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(MvCalendariumColorSchemaModel::TextColumn, QHeaderView::ResizeToContents);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view->verticalHeader()->hide(); // rows have names
    view->setMinimumHeight(500);
    return view;
}

MvColorDelegate *MvCalendariumColorSchemaEditor::createDelegate(MvTableView *view) const
{
    return new MvColorDelegate(view, true);
}

QCheckBox *MvCalendariumColorSchemaEditor::createDuplicateSaturdayToVacationBox()
{
    auto *box = new QCheckBox(tr("Schulferien wie Samstage färben", "CHECKBOX"), this);
    box->setObjectName(u"vacationsLikeSaturdaysBox"_s);
    connect(box, &QCheckBox::clicked, m_model, &MvCalendariumColorSchemaModel::setTreatVacationsLikeSaturdays);
    connect(box, &QCheckBox::clicked, this, &MvCalendariumColorSchemaEditor::vacationsLikeSaturdaysChangedByUser);
    connect(m_model, &MvCalendariumColorSchemaModel::vacationsLikeSaturdaysChanged, box, &QCheckBox::setChecked);
    return box;
}

QCheckBox *MvCalendariumColorSchemaEditor::createDuplicateSundayToHolidayBox()
{
    auto *box = new QCheckBox(tr("Feiertage wie Sonntage färben", "CHECKBOX"), this);
    box->setObjectName(u"holidaysLikeSundaysBox"_s);
    connect(box, &QCheckBox::clicked, m_model, &MvCalendariumColorSchemaModel::setTreatHolidaysLikeSundays);
    connect(box, &QCheckBox::clicked, this, &MvCalendariumColorSchemaEditor::holidaysLikeSundaysChangedByUser);
    connect(m_model, &MvCalendariumColorSchemaModel::holidaysLikeSundaysChanged, box, &QCheckBox::setChecked);
    return box;
}

QCheckBox *MvCalendariumColorSchemaEditor::createParityCheckBox()
{
    auto *box = new QCheckBox(tr("Farbwechsel je Woche", "CHECKBOX"), this);
    box->setObjectName(u"parityBox"_s);
    connect(box, &QCheckBox::clicked, m_model, &MvCalendariumColorSchemaModel::setUseParityLogic);
    connect(m_model, &MvCalendariumColorSchemaModel::parityDifferenceChanged, box, &QCheckBox::setChecked);
    return box;
}

QCheckBox *MvCalendariumColorSchemaEditor::createShowGridCheckBox()
{
    auto *box = new QCheckBox(tr("Gitter anzeigen", "CHECKBOX"), this);
    box->setObjectName(u"showGridBox"_s);
    connect(box, &QCheckBox::clicked, m_model, &MvCalendariumColorSchemaModel::enableGrid);
    connect(m_model, &MvCalendariumColorSchemaModel::gridEnabledChanged, box, &QCheckBox::setChecked);
    return box;
}

MvColorSelectionButton *MvCalendariumColorSchemaEditor::createGridColorEdit()
{
    auto *button = new MvColorSelectionButton(true, this);
    button->setObjectName(u"gridColorButton"_s);
    button->setAccessibleName(tr("Farbe des Gitters"));
    connect(button, &MvColorSelectionButton::colorChanged, m_model, &MvCalendariumColorSchemaModel::setUserGridColor);
    connect(m_model, &MvCalendariumColorSchemaModel::gridEnabledChanged, button, &QWidget::setEnabled);
    connect(m_model, &MvCalendariumColorSchemaModel::gridColorChanged, button, &MvColorSelectionButton::setColor);
    return button;
}

void MvCalendariumColorSchemaEditor::setAppearance(const MvCalendariumAppearance &appearance)
{
    if (m_appearance == appearance)
        return;
    m_appearance = appearance;
    m_model->setAppearance(appearance);
    setupSaturdayToVacationBox();
    setupSundayToHolidayBox();
    setupParityBox();
    setupGridBoxes();
}

bool MvCalendariumColorSchemaEditor::haveSameColors(const MvCalendarCellType &typeA,
                                                    const MvCalendarCellType &typeB) const
{
    return colorSchema().haveSameColors(typeA, typeB);
}

void MvCalendariumColorSchemaEditor::setupSaturdayToVacationBox()
{
    m_vacationBox->setVisible(rendererShowsDays());
    m_vacationBox->setChecked(haveSameColors(CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION));
}

void MvCalendariumColorSchemaEditor::setupSundayToHolidayBox()
{
    m_holidayBox->setVisible(rendererShowsDays());
    m_holidayBox->setChecked(haveSameColors(CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY));
}

void MvCalendariumColorSchemaEditor::setupParityBox()
{
    m_parityBox->setChecked(colorSchema().distinguishesParities());
}

void MvCalendariumColorSchemaEditor::setupGridBoxes()
{
    const MvBorderConfig grid = colorSchema().gridConfig();
    m_gridBox->setChecked(grid.isEnabled());
    m_gridColorButton->setColor(grid.color());
    m_gridColorButton->setEnabled(grid.isEnabled());
    for (QWidget *widget : {static_cast<QWidget *>(m_gridBox), static_cast<QWidget *>(m_gridColorButton)})
        widget->setVisible(layoutSchema().calendarCanPaintBorders());
}

void MvCalendariumColorSchemaEditor::fixTableHeight()
{
    QStyleOptionViewItem option;
    option.initFrom(m_tableView);
    const QModelIndex cell = m_model->index(0, MvCalendariumColorSchemaModel::BackgroundColumn);
    const QAbstractItemDelegate *delegate =
        m_tableView->itemDelegateForColumn(MvCalendariumColorSchemaModel::BackgroundColumn);
    m_tableView->setFixedHeight(2 * m_model->rowCount() * delegate->sizeHint(option, cell).height());
}

void MvCalendariumColorSchemaEditor::showAllRows()
{
    m_tableView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView *rows = m_tableView->verticalHeader();
    const auto fit = [table = m_tableView, rows] {
        const int around = table->horizontalHeader()->sizeHint().height() + 2 * table->frameWidth();
        table->setFixedHeight(rows->length() + around);
    };
    for (const QHeaderView *header : {rows, m_tableView->horizontalHeader()}) { // which know their size late
        connect(header, &QHeaderView::sectionResized, m_tableView, fit, Qt::QueuedConnection);
        connect(header, &QHeaderView::sectionCountChanged, m_tableView, fit, Qt::QueuedConnection);
        connect(header, &QHeaderView::geometriesChanged, m_tableView, fit, Qt::QueuedConnection);
    }
    fit();
}

void MvCalendariumColorSchemaEditor::updateChangedSchema()
{
    m_appearance.setColorSchema(m_model->colorSchema());
    Q_EMIT schemaChanged(colorSchema());
}
