// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvSheetSettings.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

/// Asks on which sheets of a printer the pages of a PDF are to lie: each on its own, as tiles, or several on one; and
/// what only these need to know.
class MvSheetChoice : public QWidget
{
    Q_OBJECT

public:
    /// At first each page is a sheet of its own, on the paper that was chosen last.
    explicit MvSheetChoice(QWidget *parent = nullptr);

    /// What there is no use for is disabled, and says why.
    void setAvailable(bool isAvailable, const QString &reason);
    MvSheetSettings settings() const;
    /// What a label belongs to.
    QComboBox *kindBox() const { return m_kind; }
    void remember() const;

Q_SIGNALS:
    void changed();

private:
    QWidget *createDetails();
    void showDetails();

    QComboBox *m_kind;
    QComboBox *m_paper;
    QDoubleSpinBox *m_overlap;
    QCheckBox *m_isForCutting;
    QCheckBox *m_isTwoSided;
    QLabel *m_twoSidedReason;
    QLabel *m_reason;
    QWidget *m_details;
};
