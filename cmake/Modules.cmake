# add_module(<name> SOURCES ... [LINKS ...] [TESTS ...] [TEST_LINKS ...] [TEST_LABELS ...])
#
# One library of src/ and, beside it, its own test program. LINKS names the libraries of the floors below; the test
# program links its module and what that brings, nothing above, so that a call upward does not link. TEST_LINKS is for
# helpers of the tests alone, TEST_LABELS are ctest's.
function(add_module name)
  cmake_parse_arguments(PARSE_ARGV 1 module "" "" "SOURCES;LINKS;TESTS;TEST_LINKS;TEST_LABELS")
  add_library(${name} ${module_SOURCES})
  target_link_libraries(${name} PUBLIC ${module_LINKS})
  if(BUILD_TESTS AND module_TESTS)
    add_test_program(${name}_test SOURCES ${module_TESTS} LINKS ${name} ${module_TEST_LINKS}
                     LABELS ${module_TEST_LABELS})
  endif()
endfunction()

# add_test_program(<name> SOURCES ... [LINKS ...] [LABELS ...]): a GoogleTest program, its cases known to ctest one by one
# so that they run side by side. LABELS are ctest's; the target <label>_tests builds all programs of that label.
function(add_test_program name)
  cmake_parse_arguments(PARSE_ARGV 1 program "" "" "SOURCES;LINKS;LABELS")
  add_executable(${name} ${program_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${program_LINKS} GTest::gmock GTest::gtest_main)
  gtest_discover_tests(
    ${name}
    NO_PRETTY_VALUES
    DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${name}."
    PROPERTIES TIMEOUT 120 LABELS "${program_LABELS}")
  add_dependencies(${name} test_locales)
  foreach(label IN LISTS program_LABELS)
    if(NOT TARGET ${label}_tests)
      add_custom_target(${label}_tests)
    endif()
    add_dependencies(${label}_tests ${name})
  endforeach()
endfunction()

# add_benchmark_program(<name> SOURCES ... [LINKS ...]): a Google Benchmark program, run by hand for figures. ctest runs
# it for a moment under the label "bench", to see that it works: a benchmark that skips itself with an error fails there.
function(add_benchmark_program name)
  cmake_parse_arguments(PARSE_ARGV 1 program "" "" "SOURCES;LINKS")
  add_executable(${name} ${program_SOURCES})
  target_link_libraries(${name} PRIVATE ${program_LINKS} benchmark::benchmark_main)
  if(BUILD_TESTS)
    add_test(NAME ${name} COMMAND ${name} --benchmark_min_time=0.01)
    set_tests_properties(${name} PROPERTIES LABELS bench TIMEOUT 120 FAIL_REGULAR_EXPRESSION "ERROR OCCURRED")
  endif()
endfunction()
