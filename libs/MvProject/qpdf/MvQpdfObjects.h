// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfObjects.h"

#include <memory>

/// The objects as libqpdf keeps, packs and writes them; it checks the syntax of all that is handed over.
///
/// What is large waits in a temporary file.
class MvQpdfObjects : public MvPdfObjects
{
public:
    MvQpdfObjects();
    ~MvQpdfObjects() override;

    int reserve() override;
    void set(int object, const QByteArray &value) override;
    int add(const QByteArray &value) override;
    int addPackedStream(const QByteArray &entries, const QByteArray &content) override;
    void setCatalog(const QByteArray &value) override;
    void setInformation(const QByteArray &value) override;
    void setLeastVersion(const QByteArray &version) override;
    MvOutcome write(QFile &file) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
