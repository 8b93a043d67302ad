# The layers of the library. A layer is an object library with an include root; it sees the roots of the layers that it
# uses and no others. The layers that share the include root of Quorix/ are told apart by the list of files that
# qx_add_layer records, and the target qx_layer_check, on which every layer depends, refuses an include that goes up.

define_property(GLOBAL PROPERTY QX_LAYERS BRIEF_DOCS "Names of the layers" FULL_DOCS "Names of the layers, lowest first")

# qx_add_layer(<name> ROOT <include root> [USES <layer>...] [OFFERS <header>...] FILES <source and header>...)
#
# Installed are the headers under OFFERS, those that mark something for export, and what these include.
function(qx_add_layer name)
  cmake_parse_arguments(arg "" "ROOT" "USES;OFFERS;FILES" ${ARGN})
  add_library(${name} OBJECT ${arg_FILES})
  target_include_directories(${name} PUBLIC "${arg_ROOT}")
  target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE qx_options)
  target_compile_features(${name} PUBLIC cxx_std_20)
  set_target_properties(${name} PROPERTIES QX_ROOT "${arg_ROOT}" LINKER_LANGUAGE CXX)

  set(files ${arg_FILES})
  list(TRANSFORM files PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  set(offers ${arg_OFFERS})
  list(TRANSFORM offers PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  set_property(GLOBAL APPEND PROPERTY QX_LAYERS ${name})
  set_property(GLOBAL PROPERTY QX_LAYER_${name}_FILES ${files})
  set_property(GLOBAL PROPERTY QX_LAYER_${name}_OFFERS ${offers})
  set_property(GLOBAL PROPERTY QX_LAYER_${name}_ROOT ${arg_ROOT})
  set_property(GLOBAL PROPERTY QX_LAYER_${name}_USES ${arg_USES})
endfunction()

# Writes the table of layers for the check, makes the check part of the build, and adds a target that compiles every
# public header alone.
function(qx_finish_layers)
  get_property(layers GLOBAL PROPERTY QX_LAYERS)
  set(table "")
  set(all_files "")
  set(alone "")
  foreach(layer IN LISTS layers)
    get_property(files GLOBAL PROPERTY QX_LAYER_${layer}_FILES)
    get_property(offers GLOBAL PROPERTY QX_LAYER_${layer}_OFFERS)
    get_property(root GLOBAL PROPERTY QX_LAYER_${layer}_ROOT)
    get_property(uses GLOBAL PROPERTY QX_LAYER_${layer}_USES)
    list(JOIN uses "," uses_text)
    string(APPEND table "layer|${layer}|${root}|${uses_text}\n")
    foreach(file IN LISTS offers)
      string(APPEND table "offer|${layer}|${file}\n")
    endforeach()
    foreach(file IN LISTS files)
      string(APPEND table "file|${layer}|${file}\n")
      if(file MATCHES "[.]hpp$")
        file(RELATIVE_PATH include_name "${root}" "${file}")
        string(REPLACE "/" "_" unit_name "${include_name}")
        set(unit "${PROJECT_BINARY_DIR}/headers/${unit_name}.cpp")
        file(CONFIGURE OUTPUT "${unit}" CONTENT "#include \"${include_name}\"\n#include \"${include_name}\"\n")
        set_property(GLOBAL APPEND PROPERTY QX_LAYER_${layer}_UNITS "${unit}")
      endif()
    endforeach()
    list(APPEND all_files ${files})
  endforeach()
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/layers.txt" CONTENT "${table}")

  set(stamp "${PROJECT_BINARY_DIR}/layers.stamp")
  add_custom_command(
    OUTPUT "${stamp}"
    COMMAND ${CMAKE_COMMAND} -DTABLE=${PROJECT_BINARY_DIR}/layers.txt -P "${PROJECT_SOURCE_DIR}/cmake/CheckLayers.cmake"
    COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
    DEPENDS ${all_files} "${PROJECT_BINARY_DIR}/layers.txt" "${PROJECT_SOURCE_DIR}/cmake/CheckLayers.cmake"
            "${PROJECT_SOURCE_DIR}/cmake/LayerTable.cmake"
    COMMENT "Checking that each layer includes only the layers below it" VERBATIM)
  add_custom_target(qx_layer_check DEPENDS "${stamp}")

  add_custom_target(qx_headers_alone)
  foreach(layer IN LISTS layers)
    add_dependencies(${layer} qx_layer_check)
    get_property(units GLOBAL PROPERTY QX_LAYER_${layer}_UNITS)
    if(units)
      get_property(uses GLOBAL PROPERTY QX_LAYER_${layer}_USES)
      get_property(root GLOBAL PROPERTY QX_LAYER_${layer}_ROOT)
      add_library(${layer}_headers_alone OBJECT EXCLUDE_FROM_ALL ${units})
      target_include_directories(${layer}_headers_alone PRIVATE "${root}")
      target_link_libraries(${layer}_headers_alone PRIVATE ${uses} qx_options)
      add_dependencies(qx_headers_alone ${layer}_headers_alone)
    endif()
  endforeach()
endfunction()
