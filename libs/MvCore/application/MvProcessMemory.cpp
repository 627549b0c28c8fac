// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvProcessMemory.h"

#include <cstdlib> // names the C library
#ifdef __GLIBC__
#include <malloc.h>
#endif

void MvProcessMemory::giveBackAtOnce()
{
#ifdef __GLIBC__
    constexpr int large = 1 << 20; // bytes
    mallopt(M_MMAP_THRESHOLD, large);
#endif
}
