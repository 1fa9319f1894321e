# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# What a build for a Mac adds. Included on Apple systems alone.

enable_language(OBJCXX)
set(CMAKE_OBJCXX_STANDARD 23)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)
if(QUILLMARK_CCACHE AND NOT CMAKE_OBJCXX_COMPILER_LAUNCHER)
    set(CMAKE_OBJCXX_COMPILER_LAUNCHER "${QUILLMARK_CCACHE}")
endif()

# CMake 4 leaves the SDK to the compiler.
set(QUILLMARK_MACOS_SDK "${CMAKE_OSX_SYSROOT}")
if(NOT IS_ABSOLUTE "${QUILLMARK_MACOS_SDK}" AND NOT CMAKE_CROSSCOMPILING)
    execute_process(COMMAND xcrun --sdk macosx --show-sdk-path
        OUTPUT_VARIABLE QUILLMARK_MACOS_SDK OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()

# quillmark_swift_object(TARGET FILE): adds a Swift file with C entry points to a library of C++, for every processor
# that is built for. CMake itself would make one library of one processor of it.
function(quillmark_swift_object target file)
    set(processors ${CMAKE_OSX_ARCHITECTURES})
    if(NOT processors)
        set(processors ${CMAKE_SYSTEM_PROCESSOR})
    endif()
    get_filename_component(name "${file}" NAME_WE)
    set(objects "")
    foreach(processor IN LISTS processors)
        set(object "${CMAKE_CURRENT_BINARY_DIR}/${name}-${processor}.o")
        add_custom_command(OUTPUT "${object}"
            COMMAND "${QUILLMARK_SWIFTC}" -parse-as-library -O -emit-object
                -target ${processor}-apple-macos${CMAKE_OSX_DEPLOYMENT_TARGET} -sdk "${QUILLMARK_MACOS_SDK}"
                -module-name ${name} -o "${object}" "${CMAKE_CURRENT_SOURCE_DIR}/${file}"
            DEPENDS "${file}"
            COMMENT "Building Swift object ${name}-${processor}.o"
            VERBATIM)
        list(APPEND objects "${object}")
    endforeach()
    set(whole "${CMAKE_CURRENT_BINARY_DIR}/${name}.o")
    add_custom_command(OUTPUT "${whole}"
        COMMAND lipo -create ${objects} -output "${whole}"
        DEPENDS ${objects}
        VERBATIM)
    set_source_files_properties("${whole}" PROPERTIES EXTERNAL_OBJECT ON)
    target_sources(${target} PRIVATE "${whole}")
    # Swift's own libraries come with the system.
    target_link_options(${target} INTERFACE "-L${QUILLMARK_MACOS_SDK}/usr/lib/swift" -Wl,-rpath,/usr/lib/swift)
endfunction()

# quillmark_bundle(TARGET): makes Quillmark.app of a program, which is called Quillmark within it, and bin/quillmark a
# link to it.
function(quillmark_bundle target)
    string(JOIN "</string>\n\t\t<string>" QUILLMARK_BUNDLE_LANGUAGES ${QUILLMARK_LANGUAGES})
    set(QUILLMARK_BUNDLE_SYSTEM "${CMAKE_OSX_DEPLOYMENT_TARGET}")
    if(NOT QUILLMARK_BUNDLE_SYSTEM)
        set(QUILLMARK_BUNDLE_SYSTEM "${QUILLMARK_OLDEST_MACOS}")
    endif()
    set(plist "${CMAKE_CURRENT_BINARY_DIR}/Info.plist.in")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/macos/Info.plist.in" "${plist}" @ONLY)
    set_target_properties(${target} PROPERTIES
        MACOSX_BUNDLE ON
        MACOSX_BUNDLE_INFO_PLIST "${plist}"
        OUTPUT_NAME Quillmark)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_COMMAND}" -E create_symlink Quillmark.app/Contents/MacOS/Quillmark
            "${PROJECT_BINARY_DIR}/bin/quillmark"
        VERBATIM)

    find_program(QUILLMARK_RSVG_CONVERT rsvg-convert)
    find_program(QUILLMARK_PYTHON python3)
    if(NOT QUILLMARK_RSVG_CONVERT OR NOT QUILLMARK_PYTHON)
        message(STATUS "No rsvg-convert or no python3: the application will have no icon")
        return()
    endif()
    set(icon "${CMAKE_CURRENT_BINARY_DIR}/Quillmark.icns")
    set(drawing "${PROJECT_SOURCE_DIR}/icons/app-icon.svg")
    set(maker "${PROJECT_SOURCE_DIR}/cmake/macos/make-icns")
    add_custom_command(OUTPUT "${icon}"
        COMMAND "${QUILLMARK_PYTHON}" "${maker}" --rsvg-convert "${QUILLMARK_RSVG_CONVERT}" "${drawing}" "${icon}"
        DEPENDS "${maker}" "${drawing}"
        VERBATIM)
    set_source_files_properties("${icon}" PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    target_sources(${target} PRIVATE "${icon}")
endfunction()
