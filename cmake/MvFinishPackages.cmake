# SPDX-License-Identifier: LGPL-2.1-or-later
# Run by cpack when the files of the packages lie in their folders: makes of an installation what Debian wants.
file(STRINGS ${CPACK_MV_SOURCE_DIR}/LICENSE licence LIMIT_COUNT 1)
string(REPLACE "SPDX-License-Identifier: " "" licence ${licence})

# The text of a licence as a paragraph of a copyright file; of one that every Debian system has, where it lies.
function(mv_licence_text out id)
    set(text "")
    string(REGEX REPLACE "-(or-later|only)$" "" common ${id})
    string(REGEX REPLACE "\\.0$" "" short ${common})
    foreach(name IN ITEMS ${common} ${short})
        if(EXISTS /usr/share/common-licenses/${name})
            string(CONCAT text "This is free software, distributed WITHOUT ANY WARRANTY; you can redistribute it and/or modify it under\n"
                "the terms of this licence. On Debian systems its text is /usr/share/common-licenses/${name}.")
        endif()
    endforeach()
    if(NOT text)
        file(READ ${CPACK_MV_SOURCE_DIR}/LICENSES/${id}.txt text)
        string(STRIP "${text}" text)
    endif()
    string(REGEX REPLACE "\n[ \t]*\n" "\n.\n" text "${text}")
    string(REGEX REPLACE "\n[ \t]*\n" "\n.\n" text "${text}") # two empty lines side by side
    string(REPLACE "\n" "\n " text "${text}")
    set(${out} "License: ${id}\n ${text}\n" PARENT_SCOPE)
endfunction()

function(mv_write_copyright file)
    string(CONCAT content "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n"
        "Upstream-Name: MvCalendar\n"
        "\nFiles: *\nCopyright: 2026 the authors of MvCalendar\nLicense: ${licence}\n"
        "\nFiles: resources/fonts/Lato-*\nCopyright: 2010-2014 tyPoland Lukasz Dziedzic, with Reserved Font Name \"Lato\"\n"
        "License: OFL-1.1\n"
        "\nFiles: resources/fonts/EBGaramond*\nCopyright: 2010-2013 Georg A. Duffner\nLicense: OFL-1.1\n"
        "\nFiles: resources/fonts/Inter-*\nCopyright: 2016-2022 The Inter Project Authors\nLicense: OFL-1.1\n"
        "\nFiles: resources/fonts/Quicksand-*\nCopyright: 2011 The Quicksand Project Authors, with Reserved Font Name \"Quicksand\"\n"
        "License: OFL-1.1\n"
        "\nFiles: resources/fonts/GFSDidot*\nCopyright: 2007 Greek Font Society, with Reserved Font Name 'GFS Didot'\n"
        "License: OFL-1.1\n"
        "\nFiles: resources/fonts/LeagueSpartan-*\nCopyright: 2011-2020 Micah Rich, with Reserved Font Name \"League Spartan\"\n"
        "License: OFL-1.1\n"
        "\nFiles: resources/fonts/Vollkorn-*\nCopyright: 2006-2014 Friedrich Althausen\nLicense: OFL-1.1\n"
        "\nFiles: resources/fonts/texgyrepagella-*\nCopyright: 2007-2018 B. Jackowski and J.M. Nowacki\n"
        "License: GUST-Font-License\n"
        "\nFiles: resources/holidays/vacations-*-odbl.xml\nCopyright: the contributors of the OpenHolidays API\n"
        "License: ODbL-1.0\n"
        "Comment: Contains information from the OpenHolidays API data collection, which is made available here under the\n"
        " Open Database License (ODbL) 1.0.\n")
    foreach(id IN ITEMS ${licence} OFL-1.1 GUST-Font-License ODbL-1.0)
        mv_licence_text(text ${id})
        string(APPEND content "\n${text}")
    endforeach()
    file(WRITE ${file} "${content}")
endfunction()

function(mv_compress file)
    file(CHMOD ${file} FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(mv_finish_package folder name)
    # programs and libraries of a system are found where the system looks
    file(GLOB_RECURSE binaries ${folder}/usr/bin/* ${folder}/usr/lib/*.so.* ${folder}/usr/lib/*.so)
    foreach(binary IN LISTS binaries)
        if(NOT IS_SYMLINK ${binary})
            file(RPATH_REMOVE FILE ${binary})
        endif()
    endforeach()
    file(GLOB_RECURSE pages ${folder}/usr/share/man/*.1)
    set(changelog ${folder}/usr/share/doc/${name}/changelog.Debian)
    configure_file(${CPACK_MV_SOURCE_DIR}/cmake/debian/changelog.in ${changelog} @ONLY)
    foreach(file IN LISTS pages changelog)
        mv_compress(${file})
    endforeach()
    mv_write_copyright(${folder}/usr/share/doc/${name}/copyright)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    mv_finish_package(${CPACK_TEMPORARY_DIRECTORY}/${component} ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
endforeach()
