// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageTemplate.h"

#include "MvCore/MvSharedData.h"

#include <QLocale>

struct MvPageTemplateImpl : MvSharedData
{
    QString id;
    MvPageKind kind = MvPageKind::Month;
    QString name;
    QString englishName;
    MvPageTemplate::Division division;
};

MvPageTemplate::MvPageTemplate()
    : d(new MvPageTemplateImpl)
{}

MvPageTemplate::MvPageTemplate(const QString &id, MvPageKind kind, const QString &name, const QString &englishName,
                               const Division &division)
    : d(new MvPageTemplateImpl{{}, id, kind, name, englishName, division})
{}

MvPageTemplate::~MvPageTemplate() = default;
MvPageTemplate::MvPageTemplate(const MvPageTemplate &) = default;
MvPageTemplate::MvPageTemplate(MvPageTemplate &&) noexcept = default;
MvPageTemplate &MvPageTemplate::operator=(const MvPageTemplate &) = default;
MvPageTemplate &MvPageTemplate::operator=(MvPageTemplate &&) noexcept = default;

MvPageTemplate MvPageTemplate::unknown(const QString &id)
{
    return {id, MvPageKind::Month, id, QString(), {}};
}

bool MvPageTemplate::isKnown() const
{
    return bool(d->division);
}

QString MvPageTemplate::id() const
{
    return d->id;
}

MvPageKind MvPageTemplate::kind() const
{
    return d->kind;
}

QString MvPageTemplate::name() const
{
    const bool isGerman = QLocale().language() == QLocale::German;
    return isGerman || d->englishName.isEmpty() ? d->name : d->englishName;
}

QList<MvTemplateSlot> MvPageTemplate::slotsFor(const MvPageFormat &format) const
{
    return isKnown() && format.isValid() ? d->division(format) : QList<MvTemplateSlot>();
}

bool operator==(const MvPageTemplate &a, const MvPageTemplate &b)
{
    return a.d == b.d || a.id() == b.id();
}
