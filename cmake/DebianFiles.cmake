# Adds to the trees of the packages what Debian asks for beyond what `cmake --install` brings. Run by CPack for each
# package after the project is installed into its tree.

function(qx_compress file)
  execute_process(COMMAND gzip -9n "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

get_filename_component(source "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} key)
  set(package ${CPACK_DEBIAN_${key}_PACKAGE_NAME})
  set(tree "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}/usr")
  set(doc "${tree}/share/doc/${package}")
  file(MAKE_DIRECTORY "${doc}")
  configure_file("${source}/LICENSE" "${doc}/copyright" COPYONLY)
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
  file(WRITE "${doc}/changelog.Debian" "quorix (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; "
    "urgency=medium\n\n  * As told in CHANGELOG.md.\n\n -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
  qx_compress("${doc}/changelog.Debian")
  file(GLOB manuals "${tree}/share/man/man1/*.1")
  foreach(manual IN LISTS manuals)
    qx_compress("${manual}")
  endforeach()
  # Packages find libraries in the places of the system.
  if(EXISTS "${tree}/bin/quorix")
    file(RPATH_REMOVE FILE "${tree}/bin/quorix")
  endif()
endforeach()
