// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvTestHome.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Surroundings
{
    MvTestHome home;
    QTemporaryDir folder{QFileInfo(u"/dev/shm"_s).isWritable() ? u"/dev/shm/mvfuzz-XXXXXX"_s : u"mvfuzz-XXXXXX"_s};
};

std::unique_ptr<Surroundings> surroundings;
QGuiApplication *application = nullptr; // stays: where the search ends, the application's own statics are gone already

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    surroundings = std::make_unique<Surroundings>();
    application = new QGuiApplication(*argc, *argv);
    std::atexit([] { surroundings.reset(); });
    return 0;
}

QByteArray MvFuzz::bytes(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), qsizetype(size)};
}

QFileInfo MvFuzz::file(const QByteArray &content)
{
    QFile file(surroundings->folder.filePath(u"input"_s));
    check(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "no file for the input");
    return QFileInfo(file.fileName());
}

void MvFuzz::check(bool isTrue, const char *what)
{
    if (isTrue)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}
