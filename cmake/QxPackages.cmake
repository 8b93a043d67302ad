# Packages for Debian, made by `cpack -G DEB` of a build for the prefix /usr; scripts/package makes and tries them.

string(CONCAT about
  "Quorix evaluates the formulas that people write for the properties of building elements: numbers, quantities whose "
  "units are checked (length, area, volume, angle), texts, logical values and values that the user left undefined.")

set(CPACK_PACKAGE_NAME quorix)
set(CPACK_PACKAGE_VENDOR "The Quorix authors")
set(CPACK_PACKAGE_CONTACT "The Quorix authors <quorix@example.org>")
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
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianFiles.cmake")

# qx_describe_package(<component> <package> <section> <summary> <what it holds>)
function(qx_describe_package component package section summary holds)
  string(TOUPPER ${component} key)
  foreach(setting IN ITEMS "PACKAGE_NAME;${package}" "PACKAGE_SECTION;${section}")
    list(GET setting 0 name)
    list(GET setting 1 value)
    set(CPACK_DEBIAN_${key}_${name} ${value} PARENT_SCOPE)
  endforeach()
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${summary}\n${about}\n\n${holds}" PARENT_SCOPE)
endfunction()

qx_describe_package(library libquorix${PROJECT_VERSION_MAJOR} libs "formulas with checked units - shared library"
  "This package holds the library and its texts.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

qx_describe_package(development libquorix-dev libdevel "formulas with checked units - development files"
  "This package holds what building with the library needs, and the static library for hosts without a property model.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libboost-dev, libicu-dev")

qx_describe_package(command quorix math "formulas with checked units - command"
  "This package holds the command quorix.")
set(CPACK_COMPONENT_COMMAND_DEPENDS library)

include(CPack)
