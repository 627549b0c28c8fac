// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QDialog>

class MvLayoutChooser;
class MvPageSetupEditor;
class QPushButton;

/// Asks what a calendar is to be like: its layout, from pictures, and its paper and months, or only one of them.
class MvDocumentDialog : public QDialog
{
    Q_OBJECT

public:
    enum Part {
        Layout = 1,
        Setup = 2,
    };
    Q_DECLARE_FLAGS(Parts, Part)

    /// Begins with what the document has.
    MvDocumentDialog(Parts parts, const MvCalendarDocument &document, QWidget *parent);

    /// Says what the button does that accepts the choice; "OK" otherwise.
    void setAcceptText(const QString &text);

    /// The document with the user's choice.
    MvCalendarDocument document() const;

private:
    MvCalendarDocument m_document;
    MvLayoutChooser *m_layout = nullptr;
    MvPageSetupEditor *m_setup = nullptr;
    QPushButton *m_accept = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MvDocumentDialog::Parts)
