# What `cmake --install` puts where, in three components: the library, what building with it needs, and the command.

include(CMakePackageConfigHelpers)
set(config "${CMAKE_INSTALL_LIBDIR}/cmake/Quorix")
set(doc "${CMAKE_INSTALL_DATADIR}/doc/quorix")

install(TARGETS Quorix EXPORT QuorixTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development)
# Beside the library, which looks for it there.
install(FILES "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${QX_TEXT_FILE}" DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)

set_target_properties(QuorixHost PROPERTIES EXPORT_NAME Host)
install(TARGETS QuorixHost EXPORT QuorixHostTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)

string(CONFIGURE [[
  set(TABLE "@PROJECT_BINARY_DIR@/layers.txt")
  set(DESTINATION "${CMAKE_INSTALL_PREFIX}/@CMAKE_INSTALL_INCLUDEDIR@/quorix")
  include("@PROJECT_SOURCE_DIR@/cmake/InstallHeaders.cmake")
]] install_headers @ONLY)
install(CODE "${install_headers}" COMPONENT development)

foreach(library IN ITEMS Quorix QuorixHost)
  install(EXPORT ${library}Targets NAMESPACE Quorix:: DESTINATION ${config} COMPONENT development)
endforeach()
configure_package_config_file(cmake/QuorixConfig.cmake.in QuorixConfig.cmake
  INSTALL_DESTINATION ${config} NO_SET_AND_CHECK_MACRO)
# As long as any version may change the interface, only its own repairs are compatible.
write_basic_package_version_file(QuorixConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/QuorixConfig.cmake" "${PROJECT_BINARY_DIR}/QuorixConfigVersion.cmake"
  DESTINATION ${config} COMPONENT development)

# From the folder of these files back to the prefix.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" OUTPUT_VARIABLE pc_to_prefix)
foreach(name IN ITEMS quorix quorix-host)
  configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()

install(FILES LICENSE CHANGELOG.md README.md DESTINATION ${doc} COMPONENT development)
install(FILES Docs/Language.md Docs/Functions.md Docs/Limits.md Docs/Persistence.md DESTINATION ${doc}/Docs COMPONENT development)

if(QX_COMMAND)
  # The installed tree may be moved.
  file(RELATIVE_PATH to_library "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  set_target_properties(quorix PROPERTIES INSTALL_RPATH "$ORIGIN/${to_library}")
  install(TARGETS quorix RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT command)
  install(FILES Apps/quorix/quorix.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME quorix COMPONENT command)
  install(FILES "${QX_MANUAL}" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT command)
endif()
