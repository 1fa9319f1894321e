# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# The package for Debian: cpack, after a build of the release preset.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded while running, where dpkg-shlibdeps cannot see them: what draws without a display and on one.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, fonts-noto-core, qt6-translations-l10n, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-cjk, vainfo")
string(CONCAT CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Quillmark inspects the computer and shows every capability as a row with a\n"
    "clear status: supported, not supported, or in need of attention. It reads the\n"
    "processor, memory, graphics, displays, codecs, cameras, storage, power, network\n"
    "and security.\n"
    "\n"
    "It also judges the health of the battery, watches the machine live, keeps a\n"
    "history of scans to compare, and writes reports as text, Markdown, JSON and\n"
    "PDF. There is a window and a command line; inspecting asks for no password,\n"
    "wakes no sleeping hardware and sends nothing anywhere.")

set(QUILLMARK_DEBIAN_FOLDER "${CMAKE_CURRENT_SOURCE_DIR}/debian")
configure_file(debian/documents.cmake.in "${CMAKE_CURRENT_BINARY_DIR}/debianDocuments.cmake" @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/debianDocuments.cmake")
