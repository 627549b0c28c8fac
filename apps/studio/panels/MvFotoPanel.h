// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvPageElement.h"

#include <functional>

class MvColorSelectionButton;
class MvPageSelection;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

/// The chosen photo: which one it is, how it lies in its frame, its border and its caption. What belongs to the frame
/// rather than to the picture (fit, border, and the place on a page without a template) is changed on all pages or on
/// this one.
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
    QSlider *createCorrection(const char *objectName, const QString &name, const QString &step, int mergeId,
                              void (MvFotoElement::*set)(int));
    void addPlace(QFormLayout *form);
    void addBorder(QFormLayout *form);
    MvPageElement element() const;
    void editFoto(const FotoEdit &edit, const QString &text, int mergeId = -1);
    /// The chosen frame, or all frames in scope.
    void editFrames(const FotoEdit &edit, const QString &text, int mergeId = -1);
    void editPlace();
    void showFoto(const MvFotoElement &foto);

    MvPageSelection *m_selection;
    QLabel *m_name;
    QPushButton *m_replace;
    QPushButton *m_remove;
    QLineEdit *m_caption;
    QComboBox *m_fit;
    QSlider *m_zoom;
    QDoubleSpinBox *m_straighten;
    QPushButton *m_turnLeft;
    QPushButton *m_turnRight;
    QSlider *m_brightness = nullptr;
    QSlider *m_contrast = nullptr;
    QPushButton *m_untouched = nullptr;
    QComboBox *m_place;
    QSpinBox *m_share;
    QDoubleSpinBox *m_border;
    MvColorSelectionButton *m_borderColor;
    QFormLayout *m_form = nullptr;
};
