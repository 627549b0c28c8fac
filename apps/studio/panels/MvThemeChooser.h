// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/MvPictureList.h"

#include "MvProject/MvCalendarDocument.h"

class MvScreenFotos;

/// The themes as pictures of a month in them.
class MvThemeChooser : public MvPictureList
{
    Q_OBJECT

public:
    explicit MvThemeChooser(const QSize &pictureSize, QWidget *parent = nullptr);
    ~MvThemeChooser() override;

    /// Pictures show the document's first month on its paper, with its photos where it has some.
    void setDocument(const MvCalendarDocument &document);

private:
    QImage makePage(int row, const QSize &sheet, double ratio);

    MvScreenFotos *m_fotos;
    MvCalendarDocument m_document;
    MvCalendarPage m_page;
};
