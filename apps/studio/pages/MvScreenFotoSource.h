// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoSource.h"

class MvScreenFotos;

/// The photos of a screen as the source of a painting: what is at hand is given, the rest is told by
/// MvScreenFotos::loaded(). GUI thread; on the stack.
class MvScreenFotoSource : public MvFotoSource
{
public:
    /// The photos must outlive it.
    explicit MvScreenFotoSource(MvScreenFotos &fotos)
        : m_fotos(fotos)
    {}

    QImage scaled(const QFileInfo &file, const QSize &bounds) override;
    /// That of what is shown, though its file may have changed since.
    QSize fullSize(const QFileInfo &file) override;

private:
    MvScreenFotos &m_fotos;
};
