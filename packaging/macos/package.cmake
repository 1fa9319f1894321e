# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# The disk image: cpack, after a build of the release preset. What is in the bundle then needs no Qt of the machine's.

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/NOTICE" DESTINATION "${share}")

get_property(targets GLOBAL PROPERTY QUILLMARK_MODULES)
set(modules "")
foreach(target IN LISTS targets)
    list(APPEND modules "Quillmark.app/Contents/PlugIns/$<TARGET_FILE_NAME:${target}>")
endforeach()
file(GENERATE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/bundleQt.cmake" CONTENT "
include(\"${QT_DEPLOY_SUPPORT}\")
qt_deploy_runtime_dependencies(EXECUTABLE Quillmark.app ADDITIONAL_MODULES ${modules} NO_APP_STORE_COMPLIANCE)
# Moving libraries into the bundle breaks the signatures that Apple silicon asks for.
execute_process(COMMAND codesign --force --deep --sign - \"\${QT_DEPLOY_PREFIX}/Quillmark.app\"
    COMMAND_ERROR_IS_FATAL ANY)
")
install(SCRIPT "${CMAKE_CURRENT_BINARY_DIR}/bundleQt.cmake")

set(CPACK_GENERATOR DragNDrop)
set(CPACK_DMG_VOLUME_NAME Quillmark)
