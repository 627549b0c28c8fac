// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPrintFinding.h"

using namespace Qt::StringLiterals;

QString MvPrintFinding::kindName() const
{
    switch (kind) {
    case Kind::MissingFoto:
        return u"missing-photo"_s;
    case Kind::UnreadableFoto:
        return u"unreadable-photo"_s;
    case Kind::CoarseFoto:
        return u"coarse-photo"_s;
    case Kind::EmptyFrame:
        return u"empty-frame"_s;
    case Kind::CutText:
        return u"cut-text"_s;
    case Kind::MissingGlyphs:
        return u"missing-glyphs"_s;
    case Kind::InBinding:
        return u"in-binding"_s;
    case Kind::OutsideSafeMargin:
        break;
    }
    return u"outside-safe-margin"_s;
}
