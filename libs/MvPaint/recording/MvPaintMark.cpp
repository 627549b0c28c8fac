// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvPaintMark.h"

#include "MvPaint/MvPaintRecorder.h"

#include <QPainter>

MvPaintMarking::MvPaintMarking(QPainter &painter, Kind kind, int row, int column, const QStringList &texts)
    : m_recorder(dynamic_cast<MvPaintRecorder *>(painter.device()))
{
    if (!m_recorder)
        return;
    m_around = m_recorder->mark();
    m_recorder->setMark(std::make_shared<const MvPaintMark>(MvPaintMark{kind, row, column, texts, m_around}));
}

MvPaintMarking::~MvPaintMarking()
{
    if (m_recorder)
        m_recorder->setMark(m_around);
}

bool MvPaintMarking::isAsked(const QPainter &painter)
{
    return dynamic_cast<const MvPaintRecorder *>(painter.device()) != nullptr;
}
