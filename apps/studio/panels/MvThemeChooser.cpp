// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvThemeChooser.h"

#include "pages/MvPageThumbnail.h"
#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

using namespace Qt::StringLiterals;

MvThemeChooser::MvThemeChooser(const QSize &pictureSize, QWidget *parent)
    : MvPictureList(
          pictureSize, [this](int row, const QSize &sheet, double ratio) { return makePage(row, sheet, ratio); },
          parent)
    , m_fotos(new MvScreenFotos(MvFotoService::Urgency::Background, this))
{
    setObjectName(u"themeList"_s);
    setAccessibleName(tr("Gestaltungen"));
    for (const MvCalendarTheme &theme : MvThemeRegistry::instance().themes())
        addPicture(theme.id(), theme.name(), theme.description());
    connect(m_fotos, &MvScreenFotos::loaded, this, [this] { renew(); });
}

MvThemeChooser::~MvThemeChooser() = default;

void MvThemeChooser::setDocument(const MvCalendarDocument &document)
{
    MvCalendarPage page;
    for (int number = 0; number < document.pages().size() && !page.isValid(); ++number)
        if (document.isMonthPage(number))
            page = document.pages().at(number);
    if (page == m_page && document.format() == m_document.format())
        return;
    m_document = document;
    m_page = page;
    setPaper(document.format().trimSize());
    renew();
}

QImage MvThemeChooser::makePage(int row, const QSize &sheet, double ratio)
{
    const MvCalendarTheme theme = MvThemeRegistry::instance().findTheme(idOf(row));
    if (!theme.isValid() || !m_page.isValid())
        return {};
    const MvCalendarPage page = MvThemeApplication::applied(m_page, theme, m_document.format());
    return MvPageThumbnail::make(page, m_document.format(), m_document.context(), sheet, ratio, m_fotos, {},
                                 MvPageThumbnail::Empty::Sample);
}
