# SPDX-License-Identifier: LGPL-2.1-or-later
# The target api_docs: the documentation of what the libraries promise, by Doxygen, as HTML in api_docs/html of the build
# folder. It fails when there is a warning, and so does the test of the same name.
find_package(Doxygen QUIET)
if(NOT Doxygen_FOUND)
    return()
endif()

get_property(mv_documented_headers GLOBAL PROPERTY MV_PUBLIC_HEADERS)
list(JOIN mv_documented_headers " " mv_documented_headers)
get_property(mv_export_macros GLOBAL PROPERTY MV_EXPORT_MACROS)
list(JOIN mv_export_macros "= " mv_export_macros)
string(APPEND mv_export_macros "=")
set(MV_HEADER_DIR ${PROJECT_BINARY_DIR}/include)
configure_file(${PROJECT_SOURCE_DIR}/docs/manual/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
add_custom_target(api_docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile VERBATIM)
if(MV_BUILD_TESTS)
    add_test(NAME api_docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile)
endif()
