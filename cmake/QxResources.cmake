# Archives of localized texts. The tools genrb and pkgdata of ICU make them, and our own SealArchive gives each a name
# by its contents and a checksum.

# qx_add_text_archive(<target> OUTPUT <sealed archive> TEXTS <file>...): builds an archive from files of texts, one for
# each language (root.txt, de.txt, de_AT.txt), root.txt among them. Other rules of the calling folder may depend on the
# output, those of other folders on the target.
function(qx_add_text_archive target)
  cmake_parse_arguments(arg "" "OUTPUT" "TEXTS" ${ARGN})
  if(NOT ICU_GENRB_EXECUTABLE OR NOT ICU_PKGDATA_EXECUTABLE)
    message(FATAL_ERROR "The tools genrb and pkgdata of ICU are missing")
  endif()
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}")
  # The name that SealArchive replaces.
  set(package Quorix_0000000000000000)

  # ICU's own form of a list of languages.
  list(TRANSFORM arg_TEXTS REPLACE ".*/([^/]+)[.]txt$" "\\1" OUTPUT_VARIABLE names)
  if(NOT root IN_LIST names)
    message(FATAL_ERROR "${target}: root.txt is missing")
  endif()
  set(languages ${names})
  list(REMOVE_ITEM languages root)
  list(TRANSFORM languages APPEND " {\"\"} ")
  list(JOIN languages "" languages)
  set(index "${folder}/res_index.txt")
  file(CONFIGURE OUTPUT "${index}" CONTENT "res_index:table(nofallback) { InstalledLocales { ${languages}} }\n")

  set(bundles "")
  foreach(text IN LISTS arg_TEXTS index)
    cmake_path(GET text STEM name)
    set(bundle "${folder}/${name}.res")
    # genrb names the bundle after the table in the text: in a folder of its own, a wrong name harms no other language
    # and ends the build.
    file(MAKE_DIRECTORY "${folder}/${name}")
    add_custom_command(
      OUTPUT "${bundle}"
      COMMAND "${ICU_GENRB_EXECUTABLE}" --quiet --encoding UTF-8 --destdir "${folder}/${name}" "${text}"
      COMMAND ${CMAKE_COMMAND} -E rename "${folder}/${name}/${name}.res" "${bundle}"
      DEPENDS "${text}"
      COMMENT "Compiling the texts of ${name}" VERBATIM)
    list(APPEND bundles "${bundle}")
  endforeach()

  list(TRANSFORM names APPEND ".res\n" OUTPUT_VARIABLE bundle_names)
  list(JOIN bundle_names "" bundle_names)
  file(CONFIGURE OUTPUT "${folder}/bundles.txt" CONTENT "${bundle_names}res_index.res\n")
  add_custom_command(
    OUTPUT "${arg_OUTPUT}"
    COMMAND "${ICU_PKGDATA_EXECUTABLE}" --quiet --mode common --name ${package} --sourcedir "${folder}"
            --destdir "${folder}" --tempdir "${folder}" "${folder}/bundles.txt"
    COMMAND SealArchive "${folder}/${package}.dat" "${arg_OUTPUT}"
    DEPENDS ${bundles} "${folder}/bundles.txt" SealArchive
    BYPRODUCTS "${folder}/${package}.dat"
    COMMENT "Packing the texts of ${target}" VERBATIM)
  add_custom_target(${target} DEPENDS "${arg_OUTPUT}")
endfunction()
