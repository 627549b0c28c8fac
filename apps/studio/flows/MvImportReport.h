// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvAddressBookImport.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Says in words what an import of address books has brought, and what it could not bring.
class MvImportReport
{
    Q_DECLARE_TR_FUNCTIONS(MvImportReport)

public:
    /// `imported` of the birthdays are in the list now; the problem says why they are not saved, if they are not.
    MvImportReport(const MvAddressBookImport::Report &report, int imported, const QString &problem);

    /// On one line.
    QString summary() const;
    /// All that is to be told; long lists end with the number of those that are left out.
    QString details() const;
    /// Something has to be done about it: nothing was found, could not be read, or is not saved.
    bool isError() const;

private:
    QStringList counts() const;
    static QString paragraph(const QString &title, const QStringList &lines);

    MvAddressBookImport::Report m_report;
    int m_imported;
    QString m_problem;
};
