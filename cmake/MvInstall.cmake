# Installation: libraries, headers, the CMake package and the pkg-config file.
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
