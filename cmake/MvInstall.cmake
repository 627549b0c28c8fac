# SPDX-License-Identifier: LGPL-2.1-or-later
# Installation: libraries, headers, the CMake package, the pkg-config files, licences, and what a desktop wants to know.
# The components are what packages are made of: engine, widgets, development, tools, studio; and licences, which
# packages tell in their own way.
include(CMakePackageConfigHelpers)

get_property(mv_libraries GLOBAL PROPERTY MV_LIBRARIES)
foreach(library IN LISTS mv_libraries)
    get_property(header_sets GLOBAL PROPERTY MV_HEADER_SETS_${library})
    set(component engine)
    if(library STREQUAL MvCalendarWidgets)
        set(component widgets)
    endif()
    install(TARGETS ${library} EXPORT MvCalendarTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component} NAMELINK_COMPONENT development
        ${header_sets})
endforeach()
install(TARGETS MvHeif MvPdf MvZip LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${MV_MODULE_FOLDER} COMPONENT engine)
set(mv_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/MvCalendar)
install(EXPORT MvCalendarTargets NAMESPACE MvCalendar:: DESTINATION ${mv_package_dir} COMPONENT development)
if(MV_BUILD_WIDGETS)
    set(mv_package_widgets Widgets)
endif()
configure_package_config_file(cmake/MvCalendarConfig.cmake.in ${PROJECT_BINARY_DIR}/MvCalendarConfig.cmake
    INSTALL_DESTINATION ${mv_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/MvCalendarConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/MvCalendarConfig.cmake ${PROJECT_BINARY_DIR}/MvCalendarConfigVersion.cmake
    DESTINATION ${mv_package_dir} COMPONENT development)

# one file for pkg-config per library: mv_install_pc(<file> <library> <what it requires>)
file(RELATIVE_PATH mv_pc_to_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" mv_pc_to_prefix "${mv_pc_to_prefix}")
function(mv_install_pc mv_pc_name mv_pc_library mv_pc_requires)
    configure_file(cmake/mvcalendar.pc.in ${PROJECT_BINARY_DIR}/${mv_pc_name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${mv_pc_name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endfunction()
mv_install_pc(mvcalendar-base MvCalendarBase "Qt6Core")
mv_install_pc(mvcalendar MvCalendar "mvcalendar-base Qt6Core Qt6Gui Qt6Xml")
mv_install_pc(mvcalendar-project MvProject "mvcalendar")
if(TARGET MvCalendarWidgets)
    mv_install_pc(mvcalendar-widgets MvCalendarWidgets "mvcalendar Qt6Widgets")
endif()

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/mvcalendar COMPONENT licences)
install(FILES ${PROJECT_SOURCE_DIR}/docs/third-party.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/mvcalendar COMPONENT tools)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/LICENSES
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/mvcalendar COMPONENT licences)

if(NOT TARGET mvcalendar)
    return()
endif()
install(TARGETS mvcalendar RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
install(TARGETS MvPages LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${MV_MODULE_FOLDER} COMPONENT tools)
install(FILES ${PROJECT_SOURCE_DIR}/docs/man/mvcalendar.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
set(mv_completion_dir ${PROJECT_SOURCE_DIR}/apps/cli/completion)
install(FILES ${mv_completion_dir}/mvcalendar.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME mvcalendar COMPONENT tools)
install(FILES ${mv_completion_dir}/_mvcalendar
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT tools)
install(FILES ${mv_completion_dir}/mvcalendar.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
if(NOT TARGET mvcalendar-studio)
    return()
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/guide
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/mvcalendar COMPONENT studio)
install(TARGETS mvcalendar-studio RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT studio)
install(FILES ${PROJECT_SOURCE_DIR}/docs/man/mvcalendar-studio.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT studio)
set(mv_desktop_dir ${PROJECT_SOURCE_DIR}/resources/desktop)
install(FILES ${mv_desktop_dir}/mvcalendar-studio.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT studio)
install(FILES ${mv_desktop_dir}/mvcalendar.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT studio)
install(FILES ${mv_desktop_dir}/org.mvcalendar.Studio.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT studio)
set(mv_icon_dir ${PROJECT_SOURCE_DIR}/resources/icons/app)
set(mv_icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${mv_icon_dir}/mvcalendar-studio.svg DESTINATION ${mv_icon_theme}/scalable/apps COMPONENT studio)
foreach(size IN ITEMS 16 24 32 48 64 128 256)
    install(FILES ${mv_icon_dir}/mvcalendar-studio-${size}.png DESTINATION ${mv_icon_theme}/${size}x${size}/apps
        COMPONENT studio RENAME mvcalendar-studio.png)
endforeach()
