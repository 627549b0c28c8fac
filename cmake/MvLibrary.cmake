# SPDX-License-Identifier: LGPL-2.1-or-later
# mv_add_library(<Module> SOURCES <Class>... HEADERS_ONLY <Class>... PUBLIC <target>... PRIVATE <target>...)
#
# A shared library libs/<Module> with the alias MvCalendar::<Module>. SOURCES names classes: each stands for
# <Class>.h and <Class>.cpp. HEADERS_ONLY names classes without a source. The include root is libs/.
function(mv_add_library module)
    cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS_ONLY;PUBLIC;PRIVATE" ${ARGN})
    string(TOLOWER ${module} lower)

    set(headers)
    set(sources)
    foreach(class IN LISTS ARG_SOURCES)
        list(APPEND headers ${CMAKE_CURRENT_SOURCE_DIR}/${class}.h)
        list(APPEND sources ${class}.cpp)
    endforeach()
    foreach(class IN LISTS ARG_HEADERS_ONLY)
        list(APPEND headers ${CMAKE_CURRENT_SOURCE_DIR}/${class}.h)
    endforeach()

    add_library(${module} SHARED ${sources} ${headers})
    add_library(MvCalendar::${module} ALIAS ${module})
    include(GenerateExportHeader)
    set(export_header ${CMAKE_BINARY_DIR}/libs/${module}/${lower}_export.h)
    generate_export_header(${module} BASE_NAME ${lower} EXPORT_FILE_NAME ${export_header})

    target_sources(${module} PUBLIC
        FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/libs ${CMAKE_BINARY_DIR}/libs
        FILES ${headers} ${export_header})
    target_include_directories(${module} PUBLIC $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/MvCalendar-1>)
    target_compile_features(${module} PUBLIC cxx_std_20)
    target_link_libraries(${module} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    set_target_properties(${module} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} VERIFY_INTERFACE_HEADER_SETS ON)
    if(MV_PRECOMPILE)
        target_precompile_headers(${module} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/MvPrecompiled.h)
    endif()
    set_property(GLOBAL APPEND PROPERTY MV_LIBRARIES ${module})
endfunction()
