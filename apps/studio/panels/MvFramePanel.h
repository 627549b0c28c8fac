// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "pages/MvFrameArrangement.h"
#include "panels/MvPagePanel.h"

#include <QRectF>

class MvCommonNumberBox;
class MvFrameEdits;
class MvPageSelection;
class QFormLayout;
class QLabel;
class QToolButton;

/// Where the chosen frame stands and how large it is, in numbers, with what puts several in line and in order. Of
/// several frames a number is shown where all have it; one that is entered goes to all of them.
class MvFramePanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// Neither frames nor selection are owned.
    MvFramePanel(MvPageEdits *edits, MvFrameEdits *frames, MvPageSelection *selection, QWidget *parent);

protected:
    void showPage() override;

private:
    /// A number of a rectangle, and what another one makes of it.
    struct Length
    {
        MvCommonNumberBox *box;
        double (*get)(const QRectF &rect);
        void (*set)(QRectF &rect, double value);
    };

    void createLength(const char *objectName, const QString &name, double (*get)(const QRectF &),
                      void (*set)(QRectF &, double));
    QToolButton *createButton(const char *objectName, const QString &icon, const QString &text);
    void addNumbers(QFormLayout *form);
    void addLines(QFormLayout *form);
    void addOrder(QFormLayout *form);
    void apply(const Length &length, double millimetres);

    MvFrameEdits *m_frames;
    MvPageSelection *m_selection;
    QLabel *m_hint;
    QWidget *m_controls;
    QList<Length> m_lengths; // left, top, width, height
    QToolButton *m_free = nullptr;
    QList<QToolButton *> m_distributing;
};
