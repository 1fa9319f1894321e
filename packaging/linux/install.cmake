# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# The files by which a Linux desktop finds the program.

set(id com.tarnwick.Quillmark)
install(FILES linux/${id}.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES linux/${id}.metainfo.xml DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

set(drawing "${PROJECT_SOURCE_DIR}/icons/app-icon.svg")
set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${drawing}" DESTINATION "${icons}/scalable/apps" RENAME ${id}.svg)
find_program(QUILLMARK_RSVG_CONVERT rsvg-convert)
if(QUILLMARK_RSVG_CONVERT)
    set(pictures "")
    foreach(side IN ITEMS 16 22 24 32 48 64 128 256 512)
        set(picture "${CMAKE_CURRENT_BINARY_DIR}/icons/${side}.png")
        add_custom_command(OUTPUT "${picture}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_CURRENT_BINARY_DIR}/icons"
            COMMAND "${QUILLMARK_RSVG_CONVERT}" --width ${side} --height ${side} "${drawing}" --output "${picture}"
            DEPENDS "${drawing}"
            VERBATIM)
        install(FILES "${picture}" DESTINATION "${icons}/${side}x${side}/apps" RENAME ${id}.png)
        list(APPEND pictures "${picture}")
    endforeach()
    add_custom_target(quillmark_icons ALL DEPENDS ${pictures})
else()
    message(STATUS "No rsvg-convert: desktops will have the application's icon as a drawing only")
endif()

set(documents "${CMAKE_INSTALL_DATADIR}/doc/quillmark")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/NOTICE" "${PROJECT_SOURCE_DIR}/CHANGELOG.md"
    "${PROJECT_SOURCE_DIR}/docs/contracts.md" "${PROJECT_SOURCE_DIR}/docs/recorded-machines.md"
    "${PROJECT_SOURCE_DIR}/docs/updates.md"
    "${PROJECT_SOURCE_DIR}/docs/report-v1.schema.json"
    DESTINATION "${documents}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/machines/" DESTINATION "${documents}/examples")
