# A GoogleTest program whose cases CTest runs one by one.
#
#   orvel_add_test(<name> SOURCES ... [LINKS ...])
include_guard(GLOBAL)
include(GoogleTest)
include(OrvelBuildFlags)

function(orvel_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;LINKS")
  add_executable(${name} ${test_SOURCES})
  orvel_set_target_defaults(${name})
  target_link_libraries(${name} PRIVATE ${test_LINKS} GTest::gmock_main)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 ENVIRONMENT "${ORVEL_TEST_ENVIRONMENT}")
endfunction()

# A Python test program (unittest) as one test of CTest, run by Debian's Python, which has h5py.
#
#   orvel_add_python_test(<name> <file> [ARGUMENTS ...] [ENVIRONMENT NAME=value ...])
function(orvel_add_python_test name file)
  cmake_parse_arguments(PARSE_ARGV 2 test "" "" "ARGUMENTS;ENVIRONMENT")
  find_program(ORVEL_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH REQUIRED)
  add_test(NAME ${name} COMMAND "${ORVEL_PYTHON}" -B "${CMAKE_CURRENT_SOURCE_DIR}/${file}" ${test_ARGUMENTS})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT "${test_ENVIRONMENT};${ORVEL_TEST_ENVIRONMENT}")
endfunction()

# A program of clang's fuzzer from <name>.cpp. Without ORVEL_FUZZ it is only compiled, so that it keeps compiling.
#
#   orvel_add_fuzzer(<name> LINKS ...)
function(orvel_add_fuzzer name)
  cmake_parse_arguments(PARSE_ARGV 1 fuzzer "" "" "LINKS")
  if(ORVEL_FUZZ)
    add_executable(${name} ${name}.cpp)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  else()
    add_library(${name} OBJECT ${name}.cpp)
  endif()
  orvel_set_target_defaults(${name})
  target_link_libraries(${name} PRIVATE ${fuzzer_LINKS})
endfunction()
