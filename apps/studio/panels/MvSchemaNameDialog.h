// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchemaID.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the name of a colour schema; one that cannot be is told at once and not accepted. Deletes itself.
class MvSchemaNameDialog : public QDialog
{
    Q_OBJECT

public:
    /// With the name to begin with. The schema of the id, if any, may keep its name.
    MvSchemaNameDialog(const QString &title, const QString &name, const MvCalendariumColorSchemaID &id,
                       QWidget *parent);

    QString name() const;

private:
    void checkName();

    MvCalendariumColorSchemaID m_id;
    QLineEdit *m_name;
    QLabel *m_hint;
    QPushButton *m_accept = nullptr;
};
