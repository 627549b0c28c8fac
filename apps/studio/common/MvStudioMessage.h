// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QString>

/// Message boxes and buttons of the studio. Boxes are shown without waiting for the answer and delete themselves.
class MvStudioMessage
{
    Q_DECLARE_TR_FUNCTIONS(MvStudioMessage)

public:
    /// What went wrong, and below it what to do or what the system says.
    static QMessageBox *error(QWidget *parent, const QString &text, const QString &hint = {});
    static QMessageBox *information(QWidget *parent, const QString &text, const QString &hint = {});

    /// Has no buttons yet; the caller adds them, connects finished() and calls open().
    static QMessageBox *question(QWidget *parent, const QString &objectName, const QString &text,
                                 const QString &hint = {});

    /// The texts of standard buttons in the program's language, whatever translations the system has.
    static QString buttonText(QDialogButtonBox::StandardButton button);
    static QDialogButtonBox *createButtonBox(QDialogButtonBox::StandardButtons buttons, QWidget *parent);

    /// At most so many lines, each of a length that suits a window, then how many are left out.
    static QString shortened(const QStringList &lines, int most);
};
