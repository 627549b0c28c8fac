# SPDX-License-Identifier: LGPL-2.1-or-later
# mv_add_library(<name> PUBLIC <target>... PRIVATE <target>...)
#
# A shared library with the alias MvCalendar::<name>. It has no sources yet: mv_add_room() gives them.
function(mv_add_library name)
    cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} SHARED)
    add_library(MvCalendar::${name} ALIAS ${name})
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${MV_HEADER_DIR}> $<BUILD_INTERFACE:${MV_EXPORT_HEADER_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/MvCalendar-1>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    if(NOT MV_SANITIZE)
        target_link_options(${name} PRIVATE -Wl,-Bsymbolic-functions) # its own functions need not be looked for
    endif()
    set_target_properties(${name} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} VERIFY_INTERFACE_HEADER_SETS ON)
    if(MV_PRECOMPILE)
        set(precompiled MvPrecompiled.h)
        if(name STREQUAL MvCalendarBase)
            set(precompiled MvPrecompiledBase.h)
        endif()
        target_precompile_headers(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/${precompiled})
    endif()
    set_property(GLOBAL APPEND PROPERTY MV_LIBRARIES ${name})
endfunction()

# mv_add_room(<library> <folder> INCLUDE <Module> PUBLIC <Class>... PRIVATE <Class>...)
#
# A folder of classes, each <Class>.h and, where it has a source, <Class>.cpp. They are included as <Module>/<Class>.h
# wherever the folder lies: in the build tree by a link in MV_HEADER_DIR, from an installation as a file there. Headers
# of PRIVATE classes are not installed.
function(mv_add_room library folder)
    cmake_parse_arguments(ARG "" "INCLUDE" "PUBLIC;PRIVATE" ${ARGN})
    cmake_path(ABSOLUTE_PATH folder NORMALIZE OUTPUT_VARIABLE path)
    file(MAKE_DIRECTORY ${MV_HEADER_DIR}/${ARG_INCLUDE})
    foreach(class IN LISTS ARG_PUBLIC ARG_PRIVATE)
        file(CREATE_LINK ${path}/${class}.h ${MV_HEADER_DIR}/${ARG_INCLUDE}/${class}.h SYMBOLIC)
        target_sources(${library} PRIVATE ${path}/${class}.h)
        if(EXISTS ${path}/${class}.cpp)
            target_sources(${library} PRIVATE ${path}/${class}.cpp)
        endif()
    endforeach()
    if(NOT ARG_PUBLIC)
        return()
    endif()

    list(TRANSFORM ARG_PUBLIC PREPEND ${path}/ OUTPUT_VARIABLE headers)
    list(TRANSFORM headers APPEND .h)
    string(REGEX REPLACE "[^A-Za-z]" "_" set "${ARG_INCLUDE}_${folder}")
    string(TOLOWER ${set} set)
    target_sources(${library} PUBLIC FILE_SET ${set} TYPE HEADERS BASE_DIRS ${path} FILES ${headers})
    list(TRANSFORM ARG_PUBLIC REPLACE "(.+)" "${MV_HEADER_DIR}/${ARG_INCLUDE}/\\1.h" OUTPUT_VARIABLE links)
    set_property(GLOBAL APPEND PROPERTY MV_PUBLIC_HEADERS ${links})
    set_property(GLOBAL APPEND PROPERTY MV_HEADER_SETS_${library}
        FILE_SET ${set} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/MvCalendar-1/${ARG_INCLUDE} COMPONENT development)
endfunction()

# mv_add_export_headers(<library> <Module>...)
#
# <Module>/<module>_export.h with <MODULE>_EXPORT for what the library lets others see.
function(mv_add_export_headers library)
    foreach(module IN LISTS ARGN)
        string(TOLOWER ${module} lower)
        string(TOUPPER ${module} upper)
        set_property(GLOBAL APPEND PROPERTY MV_EXPORT_MACROS ${upper}_EXPORT)
        generate_export_header(${library} BASE_NAME ${lower}
            EXPORT_FILE_NAME ${MV_EXPORT_HEADER_DIR}/${module}/${lower}_export.h)
        if(MV_INSTALL)
            install(FILES ${MV_EXPORT_HEADER_DIR}/${module}/${lower}_export.h
                DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/MvCalendar-1/${module} COMPONENT development)
        endif()
    endforeach()
endfunction()

set(MV_MODULE_FOLDER mvcalendar-${PROJECT_VERSION_MAJOR})

# mv_add_module(<name> LINK <target>...)
#
# A shared object that MvLoadedModule loads: it lies in MV_MODULE_FOLDER beside the libraries. It has no sources yet.
function(mv_add_module name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_library(${name} MODULE)
    target_link_libraries(${name} PRIVATE ${ARG_LINK}
        -Wl,--push-state,--no-as-needed,-lc,--pop-state) # which Debian wants to see in each
    set_target_properties(${name} PROPERTIES PREFIX "" INSTALL_RPATH "$ORIGIN/.."
        LIBRARY_OUTPUT_DIRECTORY ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${MV_MODULE_FOLDER})
endfunction()

# mv_loads_modules(<target>)
#
# For what links the libraries and is run while building or testing: builds the modules that these load, too.
function(mv_loads_modules target)
    add_dependencies(${target} MvHeif MvPdf MvZip)
endfunction()
