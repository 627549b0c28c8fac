#include "MvGUIWidgets/MvTableView.h"

#include <QHeaderView>

MvTableView::MvTableView(QWidget *parent)
    : QTableView(parent)
{}

MvTableView::~MvTableView() = default;

void MvTableView::updateToReasonableMinHeight()
{
    const int rows = reasonableRowCount * verticalHeader()->defaultSectionSize();
    setMinimumHeight(horizontalHeader()->sizeHint().height() + rows + 2 * frameWidth());
}
