# Compiler settings shared by every target of the project: link qx_options to get them.

option(QX_WERROR "Treat warnings as errors" OFF)
set(QX_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined or thread")
option(QX_FUZZERS "Build the fuzzers, and everything so that they see which code runs (clang alone)" OFF)

add_library(qx_options INTERFACE)
target_compile_features(qx_options INTERFACE cxx_std_20)
target_compile_options(qx_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # It would warn of what std::stable_sort of libstdc++ 12 calls. GCC warns of the rest.
  target_compile_options(qx_options INTERFACE -Wno-deprecated-declarations)
endif()
if(QX_WERROR)
  target_compile_options(qx_options INTERFACE -Werror)
endif()

if(QX_SANITIZE)
  target_compile_options(qx_options INTERFACE -fsanitize=${QX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(qx_options INTERFACE -fsanitize=${QX_SANITIZE})
endif()

if(QX_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "QX_FUZZERS needs clang: use the preset fuzz")
  endif()
  target_compile_options(qx_options INTERFACE
    -fsanitize=fuzzer-no-link "-fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/Fuzz/ForeignFaults.txt")
  target_link_options(qx_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
