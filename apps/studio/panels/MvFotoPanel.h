// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvPageElement.h"

#include <functional>

class MvColorSelectionButton;
class MvCommonNumberBox;
class MvCommonSlider;
class MvPageSelection;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// The chosen photo: which one it is, how it lies in its frame, its border and its caption. What belongs to the frame
/// rather than to the picture (fit, border, and the place on a page without a template) is changed on all pages or on
/// this one. Of several chosen photos it shows what they have in common, and changes all of them in one step.
class MvFotoPanel : public MvPagePanel
{
    Q_OBJECT

public:
    /// The selection is not owned.
    MvFotoPanel(MvPageEdits *edits, MvPageSelection *selection, QWidget *parent);

Q_SIGNALS:
    /// Somebody wants to choose a file for the chosen frame.
    void fileRequested();

protected:
    void showPage() override;

private:
    using FotoEdit = std::function<void(MvFotoElement &)>;

    void addFile(QFormLayout *form);
    void addCrop(QFormLayout *form);
    void addTone(QFormLayout *form);
    MvCommonSlider *createCorrection(const char *objectName, const QString &name, const QString &step, int mergeId,
                                     void (MvFotoElement::*set)(int));
    void addPlace(QFormLayout *form);
    void addBorder(QFormLayout *form);
    /// The frame that was chosen last comes last.
    QList<MvFotoElement> frames() const;
    void editChosen(const FotoEdit &edit, const QString &text, int mergeId, bool isForEmptyToo);
    void editFotos(const FotoEdit &edit, const QString &text, int mergeId = -1);
    /// The chosen frames, or all frames in scope.
    void editFrames(const FotoEdit &edit, const QString &text, int mergeId = -1);
    void editPlace();
    void showFile(const QList<MvFotoElement> &fotos, qsizetype frameCount);
    void showPicture(const QList<MvFotoElement> &fotos);
    void showFrame(const QList<MvFotoElement> &frames);

    MvPageSelection *m_selection;
    QLabel *m_name;
    QPushButton *m_replace;
    QPushButton *m_remove;
    QLineEdit *m_caption;
    QComboBox *m_fit;
    MvCommonSlider *m_zoom;
    MvCommonNumberBox *m_straighten;
    QPushButton *m_turnLeft;
    QPushButton *m_turnRight;
    MvCommonSlider *m_brightness = nullptr;
    MvCommonSlider *m_contrast = nullptr;
    QPushButton *m_untouched = nullptr;
    QComboBox *m_place;
    QSpinBox *m_share;
    MvCommonNumberBox *m_border;
    MvColorSelectionButton *m_borderColor;
    QFormLayout *m_form = nullptr;
};
