# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# Compiles for a Mac on another system, as a check: what it makes is never shipped. Environment: ZIG (the compiler),
# ZIG_TARGET (aarch64-macos.13.3 or x86_64-macos.13.3), MACOS_DECLARATIONS (stand-ins for the frameworks' headers).

set(CMAKE_SYSTEM_NAME Darwin)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR "$ENV{ZIG_TARGET}")

set(wrappers "${CMAKE_CURRENT_LIST_DIR}/macos-cross")
set(CMAKE_C_COMPILER "${wrappers}/zcc")
set(CMAKE_CXX_COMPILER "${wrappers}/zc++")
set(CMAKE_OBJCXX_COMPILER "${wrappers}/zc++")
set(CMAKE_AR "${wrappers}/zar" CACHE FILEPATH "")
set(CMAKE_RANLIB "${wrappers}/zranlib" CACHE FILEPATH "")
set(CMAKE_INSTALL_NAME_TOOL "${wrappers}/znothing" CACHE FILEPATH "")

# All three are in the target's name.
set(CMAKE_OSX_SYSROOT "" CACHE STRING "" FORCE)
set(CMAKE_OSX_ARCHITECTURES "" CACHE STRING "" FORCE)
set(CMAKE_OSX_DEPLOYMENT_TARGET "" CACHE STRING "" FORCE)

# zig's libc++ is told again which of its parts the target's system lacks, as a Mac's own is.
foreach(language C CXX OBJCXX)
    set(CMAKE_${language}_FLAGS_INIT
        "-target $ENV{ZIG_TARGET} -U_LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS -Wno-unused-command-line-argument -fno-sanitize=all")
    string(APPEND CMAKE_${language}_FLAGS_INIT " -idirafter $ENV{MACOS_DECLARATIONS}")
endforeach()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
