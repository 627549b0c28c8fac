// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColumnHeadersEditor.h"

#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvSpinBox.h"
#include "MvGUIWidgets/MvWholeTextDelegate.h"

#include <QListView>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostColumns = 20;
constexpr int listWidth = 200;

} // namespace

MvCalendariumColumnHeadersEditor::MvCalendariumColumnHeadersEditor(QWidget *parent)
    : QWidget(parent)
    , m_model(new QStringListModel(QStringList{QString()}, this))
    , m_countBox(createCountColumnsBox())
    , m_list(createColumnHeadersEdit())
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    layout->addWidget(m_countBox);
    layout->addWidget(m_list);
}

QSpinBox *MvCalendariumColumnHeadersEditor::createCountColumnsBox()
{
    auto *box = new MvSpinBox(this);
    box->setObjectName(u"countColumnsBox"_s);
    box->setAccessibleName(tr("Anzahl der Spalten"));
    box->setRange(1, mostColumns);
    box->setSuffix(tr(" Spalten"));
    box->setFixedWidth(listWidth);
    MvFormFields::keepWheelOut({box});
    connect(box, &QSpinBox::valueChanged, this, &MvCalendariumColumnHeadersEditor::countColumnsChanged);
    return box;
}

QListView *MvCalendariumColumnHeadersEditor::createColumnHeadersEdit()
{
    auto *list = new QListView(this);
    list->setObjectName(u"columnHeadersList"_s);
    list->setAccessibleName(tr("Spaltenüberschriften"));
    list->setProperty("cssstyle", u"defaultListView"_s);
    list->setAlternatingRowColors(true);
    list->setEditTriggers(QAbstractItemView::AllEditTriggers);
    list->setFixedWidth(listWidth);
    list->setModel(m_model);
    list->setItemDelegate(new MvWholeTextDelegate(list));
    connect(m_model, &QStringListModel::dataChanged, this, &MvCalendariumColumnHeadersEditor::headersEdited);
    return list;
}

void MvCalendariumColumnHeadersEditor::setHeaders(const QList<QString> &headers)
{
    const QSignalBlocker blocker(this);
    const QSignalBlocker countBlocker(m_countBox); // a count beyond its range must not cut the list
    const QStringList shown = headers.isEmpty() ? QStringList{QString()} : headers;
    if (shown != m_model->stringList()) // keeps the place in the list
        showHeaders(shown);
    m_countBox->setMaximum(qMax(mostColumns, static_cast<int>(shown.size())));
    m_countBox->setValue(static_cast<int>(shown.size()));
}

/// Row by row: a reset would forget where one stands, and the click whose editor is about to open.
void MvCalendariumColumnHeadersEditor::showHeaders(const QStringList &headers)
{
    const auto triggers = m_list->editTriggers();
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers); // nobody asked to edit the row before one that goes
    const int count = static_cast<int>(headers.size());
    const int rows = m_model->rowCount();
    if (rows > count)
        m_model->removeRows(count, rows - count);
    else if (rows < count)
        m_model->insertRows(rows, count - rows);
    m_list->setEditTriggers(triggers);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = m_model->index(row);
        if (index.data(Qt::EditRole).toString() != headers.at(row))
            m_model->setData(index, headers.at(row));
    }
}

QList<QString> MvCalendariumColumnHeadersEditor::headers() const
{
    return m_model->stringList();
}

void MvCalendariumColumnHeadersEditor::headersEdited()
{
    Q_EMIT headersChanged(headers());
}

void MvCalendariumColumnHeadersEditor::countColumnsChanged(int count)
{
    showHeaders(adaptStringListToCountItems(count));
    headersEdited();
}

QStringList MvCalendariumColumnHeadersEditor::adaptStringListToCountItems(int count) const
{
    QStringList list = m_model->stringList();
    list.resize(qMax(0, count));
    return list;
}
