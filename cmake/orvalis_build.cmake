# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# How every target of the project is built: one language level, one set of warnings, one static
# library a folder. The LINKS of a folder are its layering rule: what is not named there cannot
# be linked, and tests/house checks that it is not included either.

# The folders of src, each after those that it may know; the subsystems know no one another.
set(ORVALIS_SUBSYSTEMS alarm planner stickers notes password address letters)
set(ORVALIS_FOLDERS runtime rtf controls platform widgets skin core ${ORVALIS_SUBSYSTEMS})

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(ORVALIS_CCACHE ccache)
if(ORVALIS_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${ORVALIS_CCACHE})
endif()
find_program(ORVALIS_LLD ld.lld)
if(ORVALIS_LLD AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
  add_link_options(-fuse-ld=lld)
endif()

add_library(orvalis_options INTERFACE)
target_include_directories(orvalis_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(orvalis_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(NOT MSVC)
  target_compile_options(orvalis_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
endif()
if(ORVALIS_SANITIZE)
  target_compile_options(orvalis_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvalis_options INTERFACE -fsanitize=address,undefined)
endif()
if(ORVALIS_COVERAGE)
  target_compile_options(orvalis_options INTERFACE --coverage)
  target_link_options(orvalis_options INTERFACE --coverage)
endif()

if(ORVALIS_FUZZ)
  target_compile_options(orvalis_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# One folder, one static library: orvalis_folder(core LINKS orvalis::runtime Qt6::Widgets)
function(orvalis_folder name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT sources MATCHES "\\.cpp")
    add_library(orvalis_${name} INTERFACE)
    target_link_libraries(orvalis_${name} INTERFACE orvalis_options ${ARG_LINKS})
  else()
    add_library(orvalis_${name} STATIC ${sources})
    target_link_libraries(orvalis_${name} PUBLIC orvalis_options ${ARG_LINKS})
    # A header that the glob has just found would wait for its moc until an older one changes.
    string(SHA1 listing "${sources}")
    if(NOT listing STREQUAL "${ORVALIS_LISTING_${name}}")
      file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/orvalis_${name}_autogen/timestamp)
      set(ORVALIS_LISTING_${name} ${listing} CACHE INTERNAL "sources of the folder ${name}")
    endif()
  endif()
  add_library(orvalis::${name} ALIAS orvalis_${name})
endfunction()

# Every *_test.cpp of the folder becomes an executable of its own name, run by ctest.
function(orvalis_tests)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  # Under the sanitizers everything takes several times as long.
  set(seconds 120)
  if(ORVALIS_SANITIZE)
    set(seconds 600)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_test.cpp)
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  foreach(source ${sources})
    get_filename_component(test ${source} NAME_WE)
    add_executable(${test} ${source})
    target_link_libraries(${test} PRIVATE orvalis_options Qt6::Test ${ARG_LINKS})
    set_target_properties(${test} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    add_test(NAME ${folder}.${test} COMMAND ${test})
    set_tests_properties(${folder}.${test} PROPERTIES
      TIMEOUT ${seconds}
      LABELS ${folder}
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_HASH_SEED=0;TZ=UTC;LC_ALL=C.UTF-8")
  endforeach()
endfunction()
