# The packages: "cmake --build build/release --target package" makes a .deb of the installation, with all that it needs
# told to the system, and a .tar.gz of the portable folder. The same sources give the same bytes.
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_CONTACT "${ZARPEL_AUTHORS} <zarpel@${ZARPEL_SITE}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${ZARPEL_SUMMARY_EN})
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/open_folders.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_BINARY_DIR}/each_package.cmake)
configure_file(each_package.cmake.in ${CPACK_PROJECT_CONFIG_FILE} @ONLY)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION ${ZARPEL_DESCRIPTION_EN})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, fonts-dejavu-core, fonts-urw-base35")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
