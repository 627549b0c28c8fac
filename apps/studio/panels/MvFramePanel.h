// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "pages/MvFrameArrangement.h"
#include "panels/MvPagePanel.h"

class MvFrameEdits;
class MvPageSelection;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QToolButton;

/// Where the chosen frame stands and how large it is, in numbers, with what puts several in line and in order.
class MvFramePanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// Neither frames nor selection are owned.
    MvFramePanel(MvPageEdits *edits, MvFrameEdits *frames, MvPageSelection *selection, QWidget *parent);

protected:
    void showPage() override;

private:
    QDoubleSpinBox *createLength(const char *objectName, const QString &name);
    QToolButton *createButton(const char *objectName, const QString &icon, const QString &text);
    void addNumbers(QFormLayout *form);
    void addLines(QFormLayout *form);
    void addOrder(QFormLayout *form);
    void applyNumbers();

    MvFrameEdits *m_frames;
    MvPageSelection *m_selection;
    QLabel *m_hint;
    QWidget *m_controls;
    QDoubleSpinBox *m_left;
    QDoubleSpinBox *m_top;
    QDoubleSpinBox *m_width;
    QDoubleSpinBox *m_height;
    QToolButton *m_free = nullptr;
    QList<QToolButton *> m_distributing;
};
