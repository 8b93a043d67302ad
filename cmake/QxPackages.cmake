# Packages for Debian, made by `cpack -G DEB` of a build for the prefix /usr; scripts/package makes and tries them.

set(QX_PACKAGE_CONTACT "The Quorix authors <quorix@example.org>" CACHE STRING "Whom packages name as their maintainer")
set(CPACK_PACKAGE_NAME quorix)
set(CPACK_PACKAGE_CONTACT "${QX_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "formulas with checked units")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL library development)
if(QX_COMMAND)
  list(APPEND CPACK_COMPONENTS_ALL command)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianFiles.cmake")
set(about
"Quorix evaluates the formulas that people write for the properties of
building elements: numbers, quantities whose units are checked (length,
area, volume, angle), texts, logical values and values that the user left
undefined.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libquorix${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "${about}\n\nThis package holds the shared library and its texts.")
set(triggers "${PROJECT_BINARY_DIR}/debian/triggers")
file(CONFIGURE OUTPUT "${triggers}" CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${triggers}")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libquorix-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
  "${about}\n\nThis package holds what building with the library needs, and the static\nlibrary for hosts without a property model.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
# What the headers include and the static library calls.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libboost-dev, libicu-dev")

set(CPACK_DEBIAN_COMMAND_PACKAGE_NAME quorix)
set(CPACK_DEBIAN_COMMAND_PACKAGE_SECTION math)
set(CPACK_DEBIAN_COMMAND_DESCRIPTION "${about}\n\nThis package holds the command quorix.")
set(CPACK_COMPONENT_COMMAND_DEPENDS library)

include(CPack)
