// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// How much work a painting was; see MvRenderingSources. Only ever counted up, so one may watch several paintings.
struct MvRenderingProbe
{
    int passes = 0;         ///< calls of MvCalendariumRenderer::render(), those on trial included
    int holidayLookUps = 0; ///< questions to the holiday cache, each for a year
    int days = 0;           ///< dates looked at: holidays, cell types, texts
    int fonts = 0;          ///< fonts resolved from layout, settings and paper
};
