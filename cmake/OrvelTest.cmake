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
