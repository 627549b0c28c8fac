// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfPipeline.h"

#include "MvCore/MvFileDescriptor.h"

MvPdfPipeline::MvPdfPipeline(QFile &file)
    : Pipeline("file", nullptr)
    , m_file(file)
{}

void MvPdfPipeline::write(const unsigned char *data, size_t size)
{
    if (m_error.isEmpty() && m_file.write(reinterpret_cast<const char *>(data), qint64(size)) != qint64(size))
        m_error = MvFileDescriptor::writeErrorText(m_file);
}

void MvPdfPipeline::finish()
{
    if (m_error.isEmpty() && !m_file.flush())
        m_error = MvFileDescriptor::writeErrorText(m_file);
}
