// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDialog>

class QComboBox;

/// The settings of the program that no calendar keeps.
class MvSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MvSettingsDialog(QWidget *parent);

    /// Stores the choice.
    void accept() override;

Q_SIGNALS:
    void themeChanged();
    /// Takes effect with the next start.
    void languageChanged();

private:
    QComboBox *m_language;
    QComboBox *m_theme;
};
