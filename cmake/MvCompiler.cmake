# SPDX-License-Identifier: LGPL-2.1-or-later
# Compiler settings that hold for every target of the project.

set(CMAKE_BUILD_WITH_INSTALL_RPATH OFF)
file(RELATIVE_PATH mv_rpath_from_bin /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN:$ORIGIN/${mv_rpath_from_bin}")

find_program(MV_CCACHE ccache)
if(MV_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # precompiled headers need these two sloppinesses, or every compile misses the cache
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${MV_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
    -Wcast-qual -Wconversion -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess -Wlogical-op -Wduplicated-cond)
endif()
if(MV_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
if(MV_SANITIZE)
    add_compile_options(-fsanitize=${MV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${MV_SANITIZE})
endif()
add_compile_definitions(QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MV_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()
add_link_options(-Wl,--as-needed)
if(NOT (MV_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")) # its libraries find the sanitizer in the program
    add_link_options(-Wl,--no-undefined)
endif()
