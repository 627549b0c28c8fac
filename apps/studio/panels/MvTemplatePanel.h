// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "panels/MvPagePanel.h"

#include "MvProject/MvCalendarPage.h"

class MvPictureList;
class MvScreenFotos;

/// How photos, texts and calendaria stand on the page, from pictures of the page itself in each template. Photos and
/// texts stay; what has no room comes back with a template that has some.
class MvTemplatePanel : public MvPagePanel
{
    Q_OBJECT

public:
    MvTemplatePanel(MvPageEdits *edits, QWidget *parent);

protected:
    void showPage() override;

private:
    void onChosen();
    QImage makePage(int row, const QSize &sheet, double ratio);

    MvPictureList *m_templates;
    MvScreenFotos *m_fotos;
    MvCalendarPage m_pictured;
    QString m_theme;
};
