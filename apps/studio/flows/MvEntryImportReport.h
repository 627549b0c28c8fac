// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryFileImport.h"

#include <QDialog>

/// Says what an import of files has brought, and every line that it left out, with the reason. Deletes itself when it
/// is closed.
class MvEntryImportReport : public QDialog
{
    Q_OBJECT

public:
    MvEntryImportReport(const MvEntryFileImport::Result &result, QWidget *parent);
};
