# A shared library with hidden symbols, an export header and our warnings, installed with its public headers.
#
#   orvel_add_module(<target> [PACKAGE <package>] SOURCES ... HEADERS ... [PUBLIC_LINKS ...] [PRIVATE_LINKS ...])
#
# Without PACKAGE it is a module of the platform: OrvelUtilities gets the alias Orvel::Utilities and belongs to the package
# OrvelPlatform. With PACKAGE the alias is <package>::<target>. The installed packages give the same names. The include root
# is the parent of the calling folder, so that headers are included as "<target>/<Header>.h".
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)
include(GNUInstallDirs)
include(OrvelBuildFlags)

function(orvel_add_module target)
  cmake_parse_arguments(PARSE_ARGV 1 module "" "PACKAGE" "SOURCES;HEADERS;PUBLIC_LINKS;PRIVATE_LINKS")
  if(module_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "orvel_add_module(${target}): unknown arguments ${module_UNPARSED_ARGUMENTS}")
  endif()
  if(module_PACKAGE)
    set(package ${module_PACKAGE})
    set(export_name ${target})
    set(namespace ${package})
  else()
    set(package OrvelPlatform)
    string(REGEX REPLACE "^Orvel" "" export_name ${target})
    set(namespace Orvel)
  endif()

  add_library(${target} SHARED ${module_SOURCES} ${module_HEADERS})
  add_library(${namespace}::${export_name} ALIAS ${target})
  orvel_set_library_defaults(${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${export_name} INSTALL_RPATH "$ORIGIN")

  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH include_root)
  string(TOLOWER ${target} lower_name)
  set(generated_root "${PROJECT_BINARY_DIR}/generated")
  set(export_header "${generated_root}/${target}/${lower_name}_export.h")
  generate_export_header(${target} EXPORT_FILE_NAME "${export_header}")
  target_include_directories(${target} PUBLIC
    "$<BUILD_INTERFACE:${include_root}>"
    "$<BUILD_INTERFACE:${generated_root}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
  target_link_libraries(${target} PUBLIC ${module_PUBLIC_LINKS} PRIVATE ${module_PRIVATE_LINKS})

  install(TARGETS ${target} EXPORT ${package}Targets)
  install(FILES "${export_header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${target}")
  foreach(header IN LISTS module_HEADERS)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES ${header} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${target}/${folder}")
    set_property(GLOBAL APPEND PROPERTY ORVEL_PUBLIC_HEADERS "${CMAKE_CURRENT_SOURCE_DIR}/${header}")
  endforeach()
endfunction()

# Installs what find_package(<package> CONFIG) reads: the targets of the package's modules, found through
# cmake/<package>Config.cmake.in.
function(orvel_install_package package namespace)
  set(folder "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
  install(EXPORT ${package}Targets NAMESPACE ${namespace}:: DESTINATION "${folder}")
  configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in"
    "${PROJECT_BINARY_DIR}/${package}Config.cmake" INSTALL_DESTINATION "${folder}")
  write_basic_package_version_file("${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/${package}Config.cmake" "${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
    DESTINATION "${folder}")
endfunction()
