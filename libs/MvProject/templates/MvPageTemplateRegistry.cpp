// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageTemplateRegistry.h"

#include "MvCalendar/MvSchemaPlace.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvProject/MvTemplateDesign.h"
#include "MvProject/MvTemplateReader.h"

#include <algorithm>

template class MvSingleton<MvPageTemplateRegistry>;

using namespace Qt::StringLiterals;

MvPageTemplateRegistry::MvPageTemplateRegistry()
    : m_designs(std::make_unique<QList<MvTemplateDesign>>())
{
    const QList<QFileInfo> files = MvDirectoryConfig::instance().shippedAndOwn(u"templates"_s, u"*.xml"_s);
    for (const QFileInfo &file : files)
        read(file);
}

MvPageTemplateRegistry::~MvPageTemplateRegistry() = default;

void MvPageTemplateRegistry::read(const QFileInfo &file)
{
    const QList<MvTemplateDesign> designs = MvTemplateReader(file).read();
    for (const MvTemplateDesign &design : designs) {
        if (!find(design.id)) {
            m_designs->append(design);
            continue;
        }
        MvSchemaPlace place;
        place.file = file;
        place.warn(
            tr("Die Vorlage „%1“ bleibt weg, denn ihre Kennung %2 hat schon „%3“. Eine andere bringt sie zurück.")
                .arg(design.name.text(), design.id, find(design.id)->name.text()));
    }
}

const MvTemplateDesign *MvPageTemplateRegistry::find(const QString &id) const
{
    const auto found = std::find_if(m_designs->cbegin(), m_designs->cend(),
                                    [&](const MvTemplateDesign &design) { return design.id == id; });
    return found == m_designs->cend() ? nullptr : &*found;
}

MvPageTemplate MvPageTemplateRegistry::findTemplate(const QString &id, const MvTemplateStyle &style) const
{
    const MvTemplateDesign *design = find(id);
    return design ? design->dressed(style) : MvPageTemplate();
}

QList<MvPageTemplate> MvPageTemplateRegistry::templates(const MvTemplateStyle &style) const
{
    QList<MvPageTemplate> templates;
    for (const MvTemplateDesign &design : *m_designs)
        templates.append(design.dressed(style));
    return templates;
}

QList<MvPageTemplate> MvPageTemplateRegistry::templates(MvPageKind kind, const MvTemplateStyle &style) const
{
    QList<MvPageTemplate> ofKind = templates(style);
    ofKind.removeIf([kind](const MvPageTemplate &any) { return any.kind() != kind; });
    return ofKind;
}

int MvPageTemplateRegistry::fotoCount(const MvPageTemplate &pageTemplate, const MvPageFormat &format)
{
    const QList<MvTemplateSlot> places = pageTemplate.slotsFor(format);
    return int(std::count_if(places.cbegin(), places.cend(), [](const MvTemplateSlot &place) {
        return place.element.kind() == MvPageElement::Kind::Foto;
    }));
}

QString MvPageTemplateRegistry::kindName(MvPageKind kind)
{
    return MvTemplateDesign::kindName(kind);
}
