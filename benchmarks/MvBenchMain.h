// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvProcessMemory.h"
#include "MvFoto/MvImageLoader.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

/// A program of benchmarks that works with photos and memory as the programs do.
namespace MvBenchMain {

inline int run(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    MvImageLoader::raiseProcessLimit();
    MvProcessMemory::giveBackAtOnce();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace MvBenchMain
