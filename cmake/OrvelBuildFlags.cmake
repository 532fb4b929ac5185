# Warnings and sanitizers for our own targets. Nothing here reaches a consumer.
include_guard(GLOBAL)

option(ORVEL_WARNINGS_AS_ERRORS "Treat compiler warnings in our own code as errors" OFF)
set(ORVEL_SANITIZE "" CACHE STRING "Sanitizers for our own targets, such as address,undefined or thread")
option(ORVEL_COVERAGE "Count the lines and branches that run; needs clang" OFF)
option(ORVEL_FUZZ "Build the fuzzers; needs clang" OFF)

add_library(orvel_build_flags INTERFACE)
if(NOT MSVC)
  target_compile_options(orvel_build_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
  if(ORVEL_WARNINGS_AS_ERRORS)
    target_compile_options(orvel_build_flags INTERFACE -Werror)
  endif()
endif()
if(ORVEL_SANITIZE)
  set(sanitize_flags -fsanitize=${ORVEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_compile_options(orvel_build_flags INTERFACE ${sanitize_flags})
  target_link_options(orvel_build_flags INTERFACE ${sanitize_flags})
endif()

if(ORVEL_COVERAGE)
  set(coverage_flags -fprofile-instr-generate -fcoverage-mapping)
  target_compile_options(orvel_build_flags INTERFACE ${coverage_flags})
  target_link_options(orvel_build_flags INTERFACE ${coverage_flags})
endif()
if(ORVEL_FUZZ)
  target_compile_options(orvel_build_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

function(orvel_set_target_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:orvel_build_flags>)
  set_target_properties(${target} PROPERTIES CXX_STANDARD 17 CXX_STANDARD_REQUIRED ON CXX_EXTENSIONS OFF)
endfunction()

function(orvel_set_library_defaults target)
  orvel_set_target_defaults(${target})
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
  # Lets a library call and inline its own exported functions, as if nobody could put another in their place.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
  endif()
endfunction()
