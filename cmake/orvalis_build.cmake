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

# What people run is -O2, as distributions build, and not CMake's own -O3.
if(CMAKE_CXX_FLAGS_RELEASE STREQUAL "-O3 -DNDEBUG")
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "Flags of the Release build" FORCE)
endif()

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

# The headers of Qt are compiled once for all folders: orvalis_precompiled(target texts) for those that know
# no widget, orvalis_precompiled(target widgets) for the others. A compiler cache could not see through them,
# so where there is one it stands in for them. Every file names what it includes all the same: the lint
# reads the sources without.
option(ORVALIS_PRECOMPILED "Precompile the headers of Qt (g++ only)" ON)
if(ORVALIS_CCACHE OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(ORVALIS_PRECOMPILED OFF)
endif()

function(orvalis_precompiled_headers name)
  cmake_parse_arguments(ARG "" "" "LINKS;HEADERS;OPTIONS" ${ARGN})
  if(NOT ORVALIS_PRECOMPILED)
    return()
  endif()
  set(source ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(orvalis_precompiled_${name} OBJECT EXCLUDE_FROM_ALL ${source})
  set_target_properties(orvalis_precompiled_${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(orvalis_precompiled_${name} PRIVATE orvalis_options ${ARG_LINKS})
  target_compile_options(orvalis_precompiled_${name} PRIVATE ${ARG_OPTIONS})
  target_precompile_headers(orvalis_precompiled_${name} PRIVATE ${ARG_HEADERS})
endfunction()

function(orvalis_precompiled target name)
  if(ORVALIS_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM orvalis_precompiled_${name})
  endif()
endfunction()

# A source that the glob of a target has just found would wait for its moc until an older one changes.
function(orvalis_renew_moc target sources)
  string(SHA1 listing "${sources}")
  if(NOT listing STREQUAL "${ORVALIS_LISTING_${target}}")
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
    set(ORVALIS_LISTING_${target} ${listing} CACHE INTERNAL "sources of ${target}")
  endif()
endfunction()

# One folder, one static library: orvalis_folder(core LINKS orvalis::runtime Qt6::Widgets). What has grown too
# large for one list of files lies in PARTS, which are folders within it.
function(orvalis_folder name)
  cmake_parse_arguments(ARG "" "" "LINKS;PARTS" ${ARGN})
  set(patterns *.cpp *.h)
  foreach(part ${ARG_PARTS})
    list(APPEND patterns ${part}/*.cpp ${part}/*.h)
  endforeach()
  list(TRANSFORM patterns PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  if(NOT sources MATCHES "\\.cpp")
    add_library(orvalis_${name} INTERFACE)
    target_link_libraries(orvalis_${name} INTERFACE orvalis_options ${ARG_LINKS})
  else()
    add_library(orvalis_${name} STATIC ${sources})
    target_link_libraries(orvalis_${name} PUBLIC orvalis_options ${ARG_LINKS})
    if(name MATCHES "^(runtime|rtf)$")
      orvalis_precompiled(orvalis_${name} texts)
    else()
      orvalis_precompiled(orvalis_${name} widgets)
    endif()
    orvalis_renew_moc(orvalis_${name} "${sources}")
  endif()
  add_library(orvalis::${name} ALIAS orvalis_${name})
endfunction()

# What belongs beside the program: orvalis_companion(target file) where it is made. orvalis_program brings all
# of them, and the driver takes them along with the program.
function(orvalis_companion target file)
  set_property(GLOBAL APPEND PROPERTY ORVALIS_COMPANION_TARGETS ${target})
  set_property(GLOBAL APPEND PROPERTY ORVALIS_COMPANIONS ${file})
endfunction()

function(orvalis_bring_companions)
  get_property(targets GLOBAL PROPERTY ORVALIS_COMPANION_TARGETS)
  get_property(files GLOBAL PROPERTY ORVALIS_COMPANIONS)
  add_dependencies(orvalis_program ${targets})
  list(JOIN files "|" names)
  target_compile_definitions(orvalis_driver PRIVATE "ORVALIS_COMPANIONS=\"${names}\"")
endfunction()
