// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvTextElement.h"

#include <functional>

class MvColorSelectionButton;
class MvCommonNumberBox;
class MvFontFamilyBox;
class MvPageSelection;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QPlainTextEdit;
class QToolButton;

/// The chosen text: what it says, with placeholders that the calendar fills, and how it is set. Of several chosen texts
/// it shows what they have in common, and changes all of them in one step.
class MvTextPanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// The selection is not owned.
    MvTextPanel(MvPageEdits *edits, MvPageSelection *selection, QWidget *parent);

protected:
    void showPage() override;

private:
    using TextEdit = std::function<void(MvTextElement &)>;

    void addText(QFormLayout *form);
    void addFont(QFormLayout *form);
    void addLook(QFormLayout *form);
    QCheckBox *createBox(const char *objectName, const QString &text,
                         const std::function<void(MvTextElement &, bool)> &set);
    void addAlignment(QFormLayout *form);
    /// Those chosen; the last one last.
    QList<MvTextElement> texts() const;
    void edit(const TextEdit &edit, const QString &text, int mergeId = -1);
    void editLook(const TextEdit &edit);

    MvPageSelection *m_selection;
    QPlainTextEdit *m_text;
    QToolButton *m_placeholders;
    MvFontFamilyBox *m_family;
    QString m_noFamily; // what its empty field says
    MvCommonNumberBox *m_points;
    QCheckBox *m_bold = nullptr;
    QCheckBox *m_italic = nullptr;
    QCheckBox *m_capitals = nullptr;
    QComboBox *m_colorKind;
    MvColorSelectionButton *m_color;
    QComboBox *m_horizontal;
    QComboBox *m_vertical;
};
