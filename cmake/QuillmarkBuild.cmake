# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# What every target of the project is built with, and how a layer is declared.

# The languages of the interface, by their tags. Each has its texts in translations/.
set(QUILLMARK_LANGUAGES en de fr es it pt-BR nl pl ja ko zh-Hans ar)

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_program(QUILLMARK_CCACHE ccache)
if(QUILLMARK_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${QUILLMARK_CCACHE}")
endif()

add_library(quillmark_options INTERFACE)
target_compile_features(quillmark_options INTERFACE cxx_std_23)
target_compile_options(quillmark_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    # Members that a designated initialiser leaves out have their defaults: that is what it is for.
    -Wno-missing-field-initializers
    # GCC 12 sees uninitialised reads in the destructor of every std::variant that holds a container.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
    $<$<BOOL:${QUILLMARK_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(quillmark_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
# Start-up is most of what a one-shot inspection costs: what is not needed is neither linked in nor loaded.
target_compile_options(quillmark_options INTERFACE -ffunction-sections -fdata-sections)
if(APPLE)
    target_link_options(quillmark_options INTERFACE -Wl,-dead_strip)
else()
    target_link_options(quillmark_options INTERFACE -Wl,--as-needed -Wl,-O1 -Wl,--gc-sections)
endif()

# As Debian hardens its own packages. Binding every symbol at the start would cost an inspection 1 to 3 % more.
target_compile_options(quillmark_options INTERFACE
    $<$<CONFIG:Release>:-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)

if(QUILLMARK_SANITIZERS)
    target_compile_options(quillmark_options INTERFACE
        -fsanitize=${QUILLMARK_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillmark_options INTERFACE -fsanitize=${QUILLMARK_SANITIZERS})
endif()

if(QUILLMARK_FUZZERS)
    target_compile_options(quillmark_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# quillmark_layer(NAME SOURCES file... [USES target...])
#
# Declares the folder's library quillmark_NAME. Its headers are reached as "NAME/Header.h", and only by targets that
# link it: each layer gets an include root of its own that holds nothing but itself, so that including a header of
# a layer that is not linked does not build.
function(quillmark_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "SOURCES;USES")
    add_library(quillmark_${name} STATIC ${layer_SOURCES})
    set(root "${PROJECT_BINARY_DIR}/layers/${name}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${root}/${name}" SYMBOLIC)
    target_include_directories(quillmark_${name} PUBLIC "${root}")
    target_link_libraries(quillmark_${name} PUBLIC ${layer_USES} PRIVATE quillmark_options)
endfunction()

# quillmark_module(NAME SOURCES file... USES target...)
#
# Declares the module quillmark-NAME, the target quillmark_NAME_module: code that the program loads when it is first
# needed (src/cli/Module.h), so that the libraries it links cost nothing otherwise.
function(quillmark_module name)
    cmake_parse_arguments(PARSE_ARGV 1 module "" "" "SOURCES;USES")
    add_library(quillmark_${name}_module MODULE ${module_SOURCES})
    target_link_libraries(quillmark_${name}_module PRIVATE quillmark_options ${module_USES})
    if(APPLE)
        set(installed "Quillmark.app/Contents/PlugIns")
        set(built "bin/${installed}")
    else()
        set(installed "${CMAKE_INSTALL_LIBDIR}/quillmark")
        set(built "${installed}")
    endif()
    set_target_properties(quillmark_${name}_module PROPERTIES
        PREFIX "" OUTPUT_NAME quillmark-${name} LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${built}")
    install(TARGETS quillmark_${name}_module LIBRARY DESTINATION "${installed}")
    set_property(GLOBAL APPEND PROPERTY QUILLMARK_MODULES quillmark_${name}_module)
endfunction()
