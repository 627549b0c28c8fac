// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvProjectFile.h"

#include <QDir>
#include <QPainter>

/// A project: whatever is read can be written, read again, and painted.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QFileInfo file = MvFuzz::file(MvFuzz::bytes(data, size));
    const MvProjectFile::Content content = MvProjectFile::read(file);
    if (!content.isOk())
        return 0;
    const auto bytesOf = [&file](const MvProjectFile::Content &read) {
        const MvProjectFile::Entries entries = read.entries ? read.entries->events : MvProjectFile::Entries();
        return MvProjectFile::toBytes(read.document, file.absoluteDir(), {}, {}, entries);
    };
    const QByteArray written = bytesOf(content);
    const MvProjectFile::Content again = MvProjectFile::read(MvFuzz::file(written));
    MvFuzz::check(again.isOk(), "a written project can be read");
    MvFuzz::check(bytesOf(again) == written, "writing again changes nothing");
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    for (int page = 0; page < qMin(2, int(again.document.pages().size())); ++page) // more would take the search's time
        again.document.paint(painter, page);
    return 0;
}
