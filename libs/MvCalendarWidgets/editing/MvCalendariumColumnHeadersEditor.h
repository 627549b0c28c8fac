// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QStringList>
#include <QWidget>

class QListView;
class QSpinBox;
class QStringListModel;

/// How many columns a calendarium has and what stands above each.
class MVCALENDARWIDGETS_EXPORT MvCalendariumColumnHeadersEditor : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendariumColumnHeadersEditor(QWidget *parent = nullptr);

    /// Emits nothing. No headers are shown as one column without a text.
    void setHeaders(const QList<QString> &headers);
    QList<QString> headers() const;

Q_SIGNALS:
    void headersChanged(const QList<QString> &headers);

public Q_SLOTS:
    void headersEdited();
    void countColumnsChanged(int count);

private:
    QSpinBox *createCountColumnsBox();
    QListView *createColumnHeadersEdit();
    void showHeaders(const QStringList &headers);
    /// The list cut, or filled up with empty texts, to the number of items.
    QStringList adaptStringListToCountItems(int count) const;

    QStringListModel *m_model;
    QSpinBox *m_countBox;
    QListView *m_list;
};
