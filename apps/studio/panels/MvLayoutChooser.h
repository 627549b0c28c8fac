// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QWidget>

class MvFotoPages;
class MvPictureList;
class QLabel;

/// The layouts as small pictures of a page. The pictures arrive after the chooser is shown, one by one.
class MvLayoutChooser : public QWidget
{
    Q_OBJECT

public:
    static constexpr QSize usualPictureSize{176, 132}; // logical pixels

    explicit MvLayoutChooser(QWidget *parent = nullptr, const QSize &pictureSize = usualPictureSize);
    ~MvLayoutChooser() override;

    /// Pictures are made with colours, holidays, paper and first month of the document; its layout is selected.
    void setDocument(const MvCalendarDocument &document);

    /// An invalid id when nothing is selected.
    MvCalendariumLayoutSchemaID layoutId() const;
    void setLayoutId(const MvCalendariumLayoutSchemaID &id);

    /// The appearance with another layout and what that suggests; colours and fonts stay.
    static MvCalendariumAppearance withLayout(const MvCalendariumAppearance &appearance,
                                              const MvCalendariumLayoutSchemaID &id);

Q_SIGNALS:
    void layoutIdChanged();
    /// Chosen for good, by a double click or the return key.
    void activated();

private:
    QImage makePage(int row, const QSize &sheet, double ratio) const;
    void describeCurrent();

    MvPictureList *m_list;
    QLabel *m_description;
    MvFotoPages *m_entryFotos;
    MvCalendarDocument m_document;
};
