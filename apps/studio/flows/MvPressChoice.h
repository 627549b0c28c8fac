// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPressSettings.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

/// Asks whether a PDF is for a print shop, and for which, and what only those need to know: that is there to be read at
/// any time, with why it cannot be chosen.
class MvPressChoice : public QWidget
{
    Q_OBJECT

public:
    /// At first what was chosen last.
    explicit MvPressChoice(QWidget *parent = nullptr);

    /// A name of MvPressProfile; empty for a screen and the printer at home.
    QString profile() const;
    /// The rest; the profile itself is not loaded.
    MvPressSettings settings() const;
    /// What a label belongs to.
    QComboBox *profileBox() const { return m_profile; }
    void remember() const;

Q_SIGNALS:
    void changed();

private:
    QWidget *createDetails();
    void enableDetails();

    QComboBox *m_profile;
    QComboBox *m_edge;
    QCheckBox *m_keepsColors;
    QLabel *m_reason;
};
