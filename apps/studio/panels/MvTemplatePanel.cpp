// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvTemplatePanel.h"

#include "common/MvPictureList.h"
#include "pages/MvPageThumbnail.h"
#include "pages/MvScreenFotos.h"
#include "panels/MvPageEdits.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvProject/MvThemeApplication.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(124, 93); // logical pixels: two side by side
const QString simpleId = u"-"_s;      // of no template

} // namespace

MvTemplatePanel::MvTemplatePanel(MvPageEdits *edits, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_templates(new MvPictureList(
          pictureSize, [this](int row, const QSize &sheet, double ratio) { return makePage(row, sheet, ratio); }, this))
    , m_fotos(new MvScreenFotos(MvFotoService::Urgency::Background, this))
{
    setObjectName(u"templatePanel"_s);
    m_templates->setObjectName(u"templateList"_s);
    m_templates->setAccessibleName(tr("Vorlagen der Seite"));
    panelLayout()->addWidget(m_templates, 1);
    connect(m_templates, &QListWidget::currentRowChanged, this, &MvTemplatePanel::onChosen);
    connect(m_fotos, &MvScreenFotos::loaded, this, [this] { m_templates->renew(); });
}

void MvTemplatePanel::showPage()
{
    const MvCalendarPage page = edits()->page();
    const bool isOtherKind = page.kind() != m_pictured.kind() || m_templates->count() == 0;
    if (isOtherKind || edits()->document().themeId() != m_theme) {
        m_templates->clear();
        if (page.kind() == MvPageKind::Month)
            m_templates->addPicture(simpleId, tr("Ohne Vorlage"),
                                    tr("Ein Kalender und ein Foto, das sich oben oder daneben anlegt"));
        for (const MvPageTemplate &one : MvThemeApplication::pageTemplates(edits()->document().themeId(), page.kind()))
            m_templates->addPicture(one.id(), one.name());
    }
    m_theme = edits()->document().themeId();
    if (isOtherKind || !(page == m_pictured)) {
        m_pictured = page;
        m_templates->setPaper(edits()->document().format().trimSize());
        m_templates->renew();
    }
    m_templates->setCurrentId(page.templateId().isEmpty() && page.isSimple() ? simpleId : page.templateId());
}

/// For all pages means all of the page's kind: a cover does not become a month.
void MvTemplatePanel::onChosen()
{
    const QString id = m_templates->currentId();
    if (isShowing() || id.isEmpty())
        return;
    const MvPageTemplate chosen =
        id == simpleId ? MvPageTemplate() : MvThemeApplication::pageTemplate(edits()->document().themeId(), id);
    const MvPageKind kind = edits()->page().kind();
    const MvPageFormat format = edits()->document().format();
    edits()->edit(
        [&](MvCalendarPage &page) {
            if (page.kind() == kind)
                page.setTemplate(chosen, format);
        },
        tr("Vorlage der Seite wählen"));
}

QImage MvTemplatePanel::makePage(int row, const QSize &sheet, double ratio)
{
    const QString id = m_templates->idOf(row);
    MvCalendarPage page = m_pictured;
    page.setTemplate(id == simpleId ? MvPageTemplate() : MvThemeApplication::pageTemplate(m_theme, id),
                     edits()->document().format());
    return MvPageThumbnail::make(page, edits()->document().format(), edits()->document().context(), sheet, ratio,
                                 m_fotos, {}, MvPageThumbnail::Empty::Sample);
}
