// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvFoto/MvFoto.h"

#include <QPixmap>
#include <QWidget>

class MvDropLabel;
class QMimeData;
class QPropertyAnimation;
class QPushButton;

/// A field for one photo, which may be empty: a click or the keyboard asks for a file, a photo can be dropped on it,
/// and while mouse or keyboard are at a photo, a button fades in that removes it.
///
/// What is chosen is only shown here: whoever has the field asks for foto() and stores it.
class MVCALENDARWIDGETS_EXPORT MvFotoField : public QWidget
{
    Q_OBJECT

public:
    explicit MvFotoField(QWidget *parent = nullptr);
    ~MvFotoField() override;

    /// A low field with a short hint, for where there is little room.
    void setCompact();

    MvFoto foto() const { return m_foto; }
    /// A large photo is shown when it has been decoded; until then, and for one that cannot be read, a text stands in
    /// its place.
    void setFoto(const MvFoto &foto);
    /// Shows the hint how to get a photo, and no button; foto() stays.
    void showHint();
    /// An image is to be seen.
    bool hasImage() const;

    /// Fades the button in or out; asking again for the same does nothing.
    void animateRemoveButton(bool in);

    // for a drop anywhere on the window around the field
    /// Shows that it can be dropped here; false when nothing of it is a file.
    bool offerDrop(const QMimeData *dragged);
    void endDrop();
    /// Takes the first photo; a file that is none is reported, and false.
    bool takeDrop(const QMimeData *dragged);

    /// What can have the keyboard focus, in order.
    QList<QWidget *> focusWidgets() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void removeFoto();
    /// Asks for a photo's file.
    void chooseFoto();
    /// Fades the button in if there is something to remove.
    void animateInRemoveButton();

private:
    void createLabel();
    void createRemoveButton();
    void takeImage(const MvFoto &foto, const QImage &image);
    void showImage();
    void showText(const QString &text);
    bool canRemove() const;
    void updateRemoveButton();

    MvFoto m_foto;
    QPixmap m_pixmap; // of the photo, in medium resolution
    MvDropLabel *m_label = nullptr;
    QPushButton *m_removeButton = nullptr;
    QPropertyAnimation *m_fade = nullptr;
    bool m_isCompact = false;
    bool m_hoversRemoveButton = false;
    bool m_hoversLabel = false;
};
