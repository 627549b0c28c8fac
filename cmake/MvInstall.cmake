# SPDX-License-Identifier: LGPL-2.1-or-later
# Installation: libraries, headers, the CMake package, the pkg-config file, and what a desktop wants to know.
include(CMakePackageConfigHelpers)

get_property(mv_libraries GLOBAL PROPERTY MV_LIBRARIES)
if(mv_libraries)
    install(TARGETS ${mv_libraries} EXPORT MvCalendarTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/MvCalendar-1)
    set(mv_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/MvCalendar)
    install(EXPORT MvCalendarTargets NAMESPACE MvCalendar:: DESTINATION ${mv_package_dir})
    configure_package_config_file(cmake/MvCalendarConfig.cmake.in ${CMAKE_BINARY_DIR}/MvCalendarConfig.cmake
        INSTALL_DESTINATION ${mv_package_dir})
    write_basic_package_version_file(${CMAKE_BINARY_DIR}/MvCalendarConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${CMAKE_BINARY_DIR}/MvCalendarConfig.cmake ${CMAKE_BINARY_DIR}/MvCalendarConfigVersion.cmake
        DESTINATION ${mv_package_dir})
    file(RELATIVE_PATH mv_pc_to_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
    string(REGEX REPLACE "/$" "" mv_pc_to_prefix "${mv_pc_to_prefix}")
    set(mv_pc_libs ${mv_libraries})
    list(REVERSE mv_pc_libs) # whoever stands on a library comes before it
    list(TRANSFORM mv_pc_libs PREPEND -l)
    list(JOIN mv_pc_libs " " mv_pc_libs)
    configure_file(cmake/mvcalendar.pc.in ${CMAKE_BINARY_DIR}/mvcalendar.pc @ONLY)
    install(FILES ${CMAKE_BINARY_DIR}/mvcalendar.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()

set(mv_desktop_dir ${PROJECT_SOURCE_DIR}/resources/desktop)
install(FILES ${mv_desktop_dir}/mvcalendar-studio.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${mv_desktop_dir}/mvcalendar.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${mv_desktop_dir}/org.mvcalendar.Studio.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PROJECT_SOURCE_DIR}/docs/man/mvcalendar.1 ${PROJECT_SOURCE_DIR}/docs/man/mvcalendar-studio.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
set(mv_icon_dir ${PROJECT_SOURCE_DIR}/resources/icons/app)
set(mv_icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${mv_icon_dir}/mvcalendar-studio.svg DESTINATION ${mv_icon_theme}/scalable/apps)
foreach(size IN ITEMS 16 24 32 48 64 128 256)
    install(FILES ${mv_icon_dir}/mvcalendar-studio-${size}.png DESTINATION ${mv_icon_theme}/${size}x${size}/apps
        RENAME mvcalendar-studio.png)
endforeach()
