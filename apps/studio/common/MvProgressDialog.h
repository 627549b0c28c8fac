// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

/// How far something has come that takes a while, with a button that ends it.
class MvProgressDialog : public QDialog
{
    Q_OBJECT

public:
    MvProgressDialog(const QString &title, const QString &text, QWidget *parent);

    void setProgress(int done, int total);

public Q_SLOTS:
    /// Closing and the escape key ask to stop, like the button; the dialog stays until finish().
    void reject() override;
    void finish();

Q_SIGNALS:
    void canceled();

private:
    QLabel *m_text;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};
