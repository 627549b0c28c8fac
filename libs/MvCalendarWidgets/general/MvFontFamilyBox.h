// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QComboBox>

/// A font family, chosen from a list or typed. currentText() is the family; empty text means no family of one's own.
///
/// A family that is not in the list, as from another computer's file, stays chosen and is marked. Typing changes
/// nothing until it is finished, and never leads to a family that is not there.
class MVGUIWIDGETS_EXPORT MvFontFamilyBox : public QComboBox
{
    Q_OBJECT

public:
    /// Nothing is chosen at first.
    explicit MvFontFamilyBox(const QStringList &families, QWidget *parent = nullptr);
    ~MvFontFamilyBox() override;

    /// Upper and lower case do not matter for a family of the list.
    void setFontFamily(const QString &family);
    /// Whether the chosen family was in none of the lists.
    bool isForeign() const;

    /// Wide enough for most names of families.
    QSize sizeHint() const override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void addForeign(const QString &family);
    void finishTyping();
    void showState();
};
