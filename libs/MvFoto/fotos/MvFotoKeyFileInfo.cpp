// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoKeyFileInfo.h"

MvFotoKeyFileInfo::MvFotoKeyFileInfo(const QString &path, const MvVideoFrameIndex &frame, const QDir &relativeTo)
    : m_path(path.isEmpty() ? QString() : QDir::cleanPath(relativeTo.absoluteFilePath(path)))
    , m_frame(frame)
{}

bool MvFotoKeyFileInfo::operator==(const MvFotoKeyFileInfo &other) const
{
    return m_path == other.m_path && m_frame == other.m_frame;
}

bool MvFotoKeyFileInfo::operator<(const MvFotoKeyFileInfo &other) const
{
    return m_path == other.m_path ? m_frame < other.m_frame : m_path < other.m_path;
}
