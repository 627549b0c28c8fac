#include "MvCalendar/MvCalendariumColumnHeadersEditor.h"

#include "MvGUIWidgets/MvMouseWheelEventFilter.h"
#include "MvGUIWidgets/MvSpinBox.h"

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
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    layout->addWidget(m_countBox);
    layout->addWidget(createColumnHeadersEdit());
}

QSpinBox *MvCalendariumColumnHeadersEditor::createCountColumnsBox()
{
    auto *box = new MvSpinBox(this);
    box->setObjectName(u"countColumnsBox"_s);
    box->setAccessibleName(tr("Anzahl der Spalten"));
    box->setRange(1, mostColumns);
    box->setSuffix(tr(" Spalten"));
    box->setFixedWidth(listWidth);
    box->installEventFilter(new MvMouseWheelEventFilter(box));
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
    connect(m_model, &QStringListModel::dataChanged, this, &MvCalendariumColumnHeadersEditor::headersEdited);
    return list;
}

void MvCalendariumColumnHeadersEditor::setHeaders(const QList<QString> &headers)
{
    const QSignalBlocker blocker(this);
    const QSignalBlocker countBlocker(m_countBox); // a count beyond its range must not cut the list
    const QStringList shown = headers.isEmpty() ? QStringList{QString()} : headers;
    if (shown != m_model->stringList()) // keeps the place in the list
        m_model->setStringList(shown);
    m_countBox->setMaximum(qMax(mostColumns, static_cast<int>(shown.size())));
    m_countBox->setValue(static_cast<int>(shown.size()));
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
    m_model->setStringList(adaptStringListToCountItems(count));
    headersEdited();
}

QStringList MvCalendariumColumnHeadersEditor::adaptStringListToCountItems(int count) const
{
    QStringList list = m_model->stringList();
    list.resize(qMax(0, count));
    return list;
}
