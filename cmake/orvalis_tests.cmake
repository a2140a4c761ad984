# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# How tests are built and run: a folder is one executable, each of its *_test.cpp one test of ctest.

# A test is compiled more often than it is run, so it is not optimised; what it tests is. The folders that
# Qt Test writes into each command line would keep precompiled headers from being shared.
set(ORVALIS_TEST_OPTIONS "")
if(NOT MSVC)
  set(ORVALIS_TEST_OPTIONS -O0 -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)
endif()

# orvalis_tests(LINKS library... [SECONDS limit] [COST cost] [ENVIRONMENT variable...])
#
# Builds the folder's tests as one executable, FOLDER_tests; "FOLDER_tests x_test [function...]" runs one of
# them. For ctest each is a test FOLDER.x_test of its own. What takes a definition or another library gives it
# to the target FOLDER_tests.
function(orvalis_tests)
  cmake_parse_arguments(ARG "" "SECONDS;COST" "LINKS;ENVIRONMENT" ${ARGN})
  if(NOT ARG_SECONDS)
    set(ARG_SECONDS 120)
  endif()
  if(ORVALIS_SANITIZE)
    # Under the sanitizers everything takes several times as long.
    math(EXPR ARG_SECONDS "5 * ${ARG_SECONDS}")
  endif()
  if(NOT ARG_ENVIRONMENT)
    set(ARG_ENVIRONMENT QT_QPA_PLATFORM=offscreen QT_HASH_SEED=0)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_test.cpp)
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  add_executable(${folder}_tests ${sources})
  orvalis_renew_moc(${folder}_tests "${sources}")
  target_link_libraries(${folder}_tests PRIVATE orvalis_options orvalis::testrunner ${ARG_LINKS})
  target_compile_options(${folder}_tests PRIVATE ${ORVALIS_TEST_OPTIONS})
  set_target_properties(${folder}_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(folder MATCHES "^(runtime|rtf|journeys)$")
    orvalis_precompiled(${folder}_tests text_tests)
  else()
    orvalis_precompiled(${folder}_tests widget_tests)
  endif()
  foreach(source ${sources})
    get_filename_component(test ${source} NAME_WE)
    file(STRINGS ${source} main REGEX "^(QTEST_[A-Z]*MAIN|int main)\\(")
    if(main)
      message(FATAL_ERROR "${source}: tests/support/test_main.h has the macros that name a test's class")
    endif()
    add_test(NAME ${folder}.${test} COMMAND ${folder}_tests ${test})
    set_tests_properties(${folder}.${test} PROPERTIES
      TIMEOUT ${ARG_SECONDS}
      LABELS ${folder}
      # What is skipped is not tested.
      FAIL_REGULAR_EXPRESSION "[1-9][0-9]* skipped"
      ENVIRONMENT "${ARG_ENVIRONMENT};TZ=UTC;LC_ALL=C.UTF-8")
    if(ARG_COST)
      set_tests_properties(${folder}.${test} PROPERTIES COST ${ARG_COST})
    endif()
  endforeach()
endfunction()
