# Refuses an include that leads from a layer to one it does not use. TABLE names the file that qx_finish_layers wrote.

cmake_minimum_required(VERSION 3.25)

include("${CMAKE_CURRENT_LIST_DIR}/LayerTable.cmake")

set(wrong "")
foreach(layer IN LISTS layers)
  foreach(path IN LISTS files_${layer})
    file(STRINGS "${path}" includes REGEX "^#include \"")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" name "${include}")
      string(MAKE_C_IDENTIFIER "${name}" key)
      if(NOT DEFINED layer_of_${key})
        string(APPEND wrong "${path}: \"${name}\" is not a file of any layer\n")
      elseif(NOT layer_of_${key} IN_LIST uses_${layer})
        string(APPEND wrong "${path}: layer ${layer} may not include \"${name}\" of layer ${layer_of_${key}}\n")
      endif()
    endforeach()
  endforeach()
endforeach()
if(wrong)
  message(FATAL_ERROR "wrong includes:\n${wrong}")
endif()
