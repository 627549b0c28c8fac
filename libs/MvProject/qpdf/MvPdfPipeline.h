// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFile>
#include <QString>

#include <qpdf/Pipeline.hh>

/// Takes what libqpdf writes to a file, until something goes wrong, as with a full disk. It must not throw: the library
/// finishes its pipelines in destructors, too.
class MvPdfPipeline : public Pipeline
{
public:
    /// The file is open, and outlives it.
    explicit MvPdfPipeline(QFile &file);

    /// Empty when all is written.
    QString error() const { return m_error; }

    void write(const unsigned char *data, size_t size) override;
    void finish() override;

private:
    QFile &m_file;
    QString m_error;
};
