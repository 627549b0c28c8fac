// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvThemePanel.h"

#include "panels/MvPageEdits.h"
#include "panels/MvThemeChooser.h"

#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(124, 93); // logical pixels: two side by side

} // namespace

MvThemePanel::MvThemePanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_themes(new MvThemeChooser(pictureSize, this))
{
    setObjectName(u"themePanel"_s);
    panelLayout()->addWidget(m_themes, 1);
    connect(m_themes, &QListWidget::currentRowChanged, this, &MvThemePanel::onThemeChosen);
}

void MvThemePanel::showPage()
{
    m_themes->setDocument(edits()->document());
    m_themes->setCurrentId(edits()->document().themeId());
}

void MvThemePanel::onThemeChosen()
{
    const MvCalendarTheme theme = MvThemeRegistry::instance().findTheme(m_themes->currentId());
    if (isShowing() || !theme.isValid() || theme.id() == edits()->document().themeId())
        return;
    edits()->editDocument(
        [&theme](MvCalendarDocument &document) { document = MvThemeApplication::applied(document, theme); },
        tr("Gestaltung wählen"));
}
