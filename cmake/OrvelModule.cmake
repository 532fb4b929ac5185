# A shared library with hidden symbols, an export header and our warnings.
#
#   orvel_add_module(<target> SOURCES ... [HEADERS ...] [PUBLIC_LINKS ...] [PRIVATE_LINKS ...])
#
# The target Orvel<Name> gets the alias Orvel::<Name>. Its include root is the parent of the calling
# folder, so that headers are included as "<target>/<Header>.h".
include_guard(GLOBAL)
include(GenerateExportHeader)
include(OrvelBuildFlags)

function(orvel_add_module target)
  cmake_parse_arguments(PARSE_ARGV 1 module "" "" "SOURCES;HEADERS;PUBLIC_LINKS;PRIVATE_LINKS")
  if(module_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "orvel_add_module(${target}): unknown arguments ${module_UNPARSED_ARGUMENTS}")
  endif()

  add_library(${target} SHARED ${module_SOURCES} ${module_HEADERS})
  string(REGEX REPLACE "^Orvel" "" short_name ${target})
  add_library(Orvel::${short_name} ALIAS ${target})
  orvel_set_library_defaults(${target})

  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH include_root)
  string(TOLOWER ${target} lower_name)
  set(generated_root "${PROJECT_BINARY_DIR}/generated")
  generate_export_header(${target} EXPORT_FILE_NAME "${generated_root}/${target}/${lower_name}_export.h")
  target_include_directories(${target} PUBLIC
    "$<BUILD_INTERFACE:${include_root}>"
    "$<BUILD_INTERFACE:${generated_root}>"
    "$<INSTALL_INTERFACE:include>")
  target_link_libraries(${target} PUBLIC ${module_PUBLIC_LINKS} PRIVATE ${module_PRIVATE_LINKS})
endfunction()
