// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageElement.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/mvproject_export.h"

#include <QList>
#include <QSharedDataPointer>
#include <QString>

#include <functional>

struct MvPageTemplateImpl;

/// A place on a page that a template provides: its name, its rectangle on the paper, and what stands there until
/// somebody puts in something else.
struct MvTemplateSlot
{
    /// With slot name, rectangle and the look of the content; photos are empty frames, texts hold their placeholders.
    MvPageElement element;

    bool operator==(const MvTemplateSlot &) const = default;
};

/// How a page is divided: slots for photos, texts and calendaria, for any paper. A value; copies share their record.
///
/// Templates are equal when their ids are. Who makes one answers for the names of its slots: unique in the template,
/// and the same on every paper.
class MVPROJECT_EXPORT MvPageTemplate
{
public:
    /// The slots on a paper, in reading order, photos that lie above others later. Called in any thread, so it must not
    /// change anything.
    using Division = std::function<QList<MvTemplateSlot>(const MvPageFormat &format)>;

    /// None; invalid.
    MvPageTemplate();
    /// The names as people read them: German, and English where it is not empty.
    MvPageTemplate(const QString &id, MvPageKind kind, const QString &name, const QString &englishName,
                   const Division &division);
    ~MvPageTemplate();
    MvPageTemplate(const MvPageTemplate &);
    MvPageTemplate(MvPageTemplate &&) noexcept;
    MvPageTemplate &operator=(const MvPageTemplate &);
    MvPageTemplate &operator=(MvPageTemplate &&) noexcept;
    /// A template of which only the id is known here: a page keeps it, and its elements where they stand.
    static MvPageTemplate unknown(const QString &id);

    bool isValid() const { return !id().isEmpty(); }
    /// It can divide a page.
    bool isKnown() const;
    QString id() const;
    MvPageKind kind() const;
    /// In the language of the program.
    QString name() const;
    /// Empty for an invalid format and for a template that is not known.
    QList<MvTemplateSlot> slotsFor(const MvPageFormat &format) const;

    friend MVPROJECT_EXPORT bool operator==(const MvPageTemplate &a, const MvPageTemplate &b);

private:
    QSharedDataPointer<MvPageTemplateImpl> d;
};

MVPROJECT_EXPORT bool operator==(const MvPageTemplate &a, const MvPageTemplate &b);
