# SPDX-License-Identifier: LGPL-2.1-or-later
# Debian packages, by `cpack` in the build folder (preset "packages"): the engine and the document, the widgets, what a
# compiler needs, the command line, the studio. The engine's package and the command line need no widgets.

set(MV_PACKAGE_MAINTAINER "MvCalendar <packages@mvcalendar.org>" CACHE STRING "Who answers for the packages")
set(MV_PACKAGE_RELEASE 1 CACHE STRING "Number of the packages made of one version")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME mvcalendar)
set(CPACK_PACKAGE_VENDOR MvCalendar)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_GROUPING IGNORE) # each a package of its own
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/MvFinishPackages.cmake)
set(CPACK_MV_SOURCE_DIR ${PROJECT_SOURCE_DIR}) # for that script

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${MV_PACKAGE_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_RELEASE ${MV_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# mv_package(<component> <name> SECTION <section> DEPENDS <package>... RECOMMENDS <package>... DESCRIPTION <text>)
#
# Names that the project itself packages are given this very version. The first line of the text is the summary.
macro(mv_package component name)
    cmake_parse_arguments(ARG "" "SECTION;DESCRIPTION" "DEPENDS;RECOMMENDS" ${ARGN})
    string(TOUPPER ${component} upper)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    list(TRANSFORM ARG_DEPENDS APPEND " (= ${PROJECT_VERSION}-${MV_PACKAGE_RELEASE})" REGEX mvcalendar)
    list(JOIN ARG_DEPENDS ", " CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS)
    list(JOIN ARG_RECOMMENDS ", " CPACK_DEBIAN_${upper}_PACKAGE_RECOMMENDS)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    if(ARG_SECTION STREQUAL libs)
        set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
    endif()
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${ARG_SECTION})
    set(CPACK_COMPONENT_${upper}_DESCRIPTION ${ARG_DESCRIPTION})
endmacro()

mv_package(engine libmvcalendar${PROJECT_VERSION_MAJOR} SECTION libs
    RECOMMENDS qt6-image-formats-plugins hyphen-de
    DESCRIPTION "library that lays out and prints photo calendars
MvCalendar makes calendars with photos, public and school holidays and
personal entries, and writes them as PDF, PNG or SVG. This package holds
the engine, with its layouts, colours, fonts and holiday tables, and the
document with its files. It needs no windows. Words are divided in the
languages of which a hyphen-* package is installed.")
if(TARGET MvCalendarWidgets)
    mv_package(widgets libmvcalendarwidgets${PROJECT_VERSION_MAJOR} SECTION libs
        DEPENDS libmvcalendar${PROJECT_VERSION_MAJOR}
        DESCRIPTION "widgets that show and edit calendars of MvCalendar
MvCalendar lays out and prints photo calendars. This package holds its
days that answer a click on a canvas, and its editors of entries, colours,
fonts and content for programs with windows.")
    set(mv_package_widgets libmvcalendarwidgets${PROJECT_VERSION_MAJOR})
endif()
mv_package(development libmvcalendar-dev SECTION libdevel
    DEPENDS libmvcalendar${PROJECT_VERSION_MAJOR} ${mv_package_widgets} qt6-base-dev
    DESCRIPTION "library that lays out and prints photo calendars - development files
MvCalendar makes calendars with photos, public and school holidays and
personal entries. This package holds headers, the CMake package and files
for pkg-config.")
mv_package(tools mvcalendar SECTION graphics
    DEPENDS libmvcalendar${PROJECT_VERSION_MAJOR}
    DESCRIPTION "photo calendars from the command line
Prints calendars as PDF, PNG or SVG: many layouts and colours, any paper,
public and school holidays of many countries and their regions, photos,
birthdays. Lists holidays as text, CSV or JSON.")
if(TARGET mvcalendar-studio)
    mv_package(studio mvcalendar-studio SECTION graphics
        DEPENDS libmvcalendar${PROJECT_VERSION_MAJOR} ${mv_package_widgets}
        RECOMMENDS qt6-wayland
        DESCRIPTION "design photo calendars and print them
Shows a calendar page by page as it will be printed: drop photos on it,
click on a day to enter a birthday, choose layout, colours and fonts, and
export or print. German and English.")
endif()

include(CPack)
