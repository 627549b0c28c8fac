// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPageTemplate.h"

#include <QList>

/// Puts elements into the slots of a template.
///
/// What somebody has put in is what differs from the prototype of the slot that an element stood in: photos, words, and
/// every single property of the look. That moves with the element; everything else is as the new slot has it.
class MvTemplateFilling
{
public:
    /// The slots in which the elements stood; none when nobody knows them.
    explicit MvTemplateFilling(const QList<MvTemplateSlot> &before)
        : m_before(before)
    {}

    /// The photo is named, or the text is another than its slot's.
    bool isOwn(const MvPageElement &element) const;
    /// The prototype with what was put into the element.
    MvPageElement merged(const MvPageElement &element, const MvPageElement &prototype) const;
    /// What stood in the slot before anybody put in anything; an element of another kind when nobody knows.
    MvPageElement prototypeOf(const MvPageElement &element) const;

    /// The elements of the slots, in their order, then those placed by hand. Of the elements, what is somebody's own
    /// and finds no slot is left in `spare`, which is filled in first.
    QList<MvPageElement> fill(const QList<MvTemplateSlot> &after, const QList<MvPageElement> &elements,
                              QList<MvPageElement> *spare) const;

private:
    QList<MvTemplateSlot> m_before;
};
