# Debian packages, one for each component of the installation: cpack -G DEB in a build with ORVEL_PACKAGES.
#
# Included last, when all install rules are known: components that this build leaves out make no package.
include(GNUInstallDirs)

set(debian_folder "${PROJECT_SOURCE_DIR}/packaging/debian")
set(made_folder "${PROJECT_BINARY_DIR}/debian")
set(library_package liborvelcommands${PROJECT_VERSION_MAJOR})
set(what_it_is
  "OrvelCommands gives the modules of an optimization job one typed view of\nits commands, wherever they are kept.")
set(same_library "${library_package} (= ${PROJECT_VERSION})")

# A line of it says: who links this library of this SOVERSION needs this package. Before 1.0.0 only the same version fits.
function(orvel_write_shlibs file)
  if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(relation "=")
  else()
    set(relation ">=")
  endif()
  get_property(modules GLOBAL PROPERTY ORVEL_MODULES)
  set(lines "")
  foreach(module IN LISTS modules)
    string(APPEND lines
      "lib${module} ${PROJECT_VERSION_MAJOR} ${library_package} (${relation} ${PROJECT_VERSION})\n")
  endforeach()
  file(WRITE "${file}" "${lines}")
endfunction()

# Installs what Debian's policy asks of each package, and names the package of the component for CPack.
macro(orvel_package component)
  cmake_parse_arguments(package "" "NAME;SECTION;SUMMARY;DESCRIPTION" "DEPENDS" ${ARGN})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package_NAME})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${package_SECTION})
  list(JOIN package_DEPENDS ", " CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS)
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${package_SUMMARY}\n${package_DESCRIPTION}")
  configure_file("${debian_folder}/lintian-overrides.in" "${made_folder}/${package_NAME}" @ONLY)
  if(EXISTS "${debian_folder}/${component}.lintian-overrides")
    file(READ "${debian_folder}/${component}.lintian-overrides" overrides)
    file(APPEND "${made_folder}/${package_NAME}" "${overrides}")
  endif()
  install(FILES "${made_folder}/${package_NAME}" DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides"
    COMPONENT ${component})
  install(FILES "${debian_folder}/copyright" "${made_folder}/changelog.gz"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package_NAME}" COMPONENT ${component})
  list(APPEND CPACK_COMPONENTS_ALL ${component})
endmacro()

file(STRINGS "${debian_folder}/changelog" newest LIMIT_COUNT 1)
if(NOT newest MATCHES "[(]${PROJECT_VERSION}[)]")
  message(FATAL_ERROR "packaging/debian/changelog begins with \"${newest}\", which is not version ${PROJECT_VERSION}")
endif()
file(MAKE_DIRECTORY "${made_folder}")
execute_process(COMMAND gzip -9nc "${debian_folder}/changelog" OUTPUT_FILE "${made_folder}/changelog.gz"
  COMMAND_ERROR_IS_FATAL ANY)

get_cmake_property(components COMPONENTS)
set(CPACK_COMPONENTS_ALL "")

orvel_package(lib
  NAME ${library_package}
  SECTION libs
  SUMMARY "parameter model of an optimization job"
  DESCRIPTION "${what_it_is}\nThis package holds the shared libraries.")
orvel_write_shlibs("${made_folder}/shlibs")
file(WRITE "${made_folder}/triggers" "activate-noawait ldconfig\n")
# CPack writes scripts that call ldconfig unless scripts of these names are given. The trigger does their work, so that the
# names stand here without files; CPack tells that they are missing and goes on.
set(CPACK_DEBIAN_LIB_PACKAGE_CONTROL_EXTRA
  "${made_folder}/shlibs" "${made_folder}/triggers" "${made_folder}/no/postinst" "${made_folder}/no/postrm")

orvel_package(dev
  NAME liborvelcommands-dev
  SECTION libdevel
  SUMMARY "parameter model of an optimization job (development files)"
  DESCRIPTION "${what_it_is}\nThis package holds the headers and what CMake and pkg-config need to find\nthe library."
  DEPENDS ${same_library} libhdf5-dev)

if("tools" IN_LIST components)
  orvel_package(tools
    NAME orvel-parfile
    SECTION science
    SUMMARY "command-line tool for the parameter files of optimization jobs"
    DESCRIPTION "orvel-parfile makes the parameter file of an optimization job from its\ndescription, checks it and shows its commands."
    DEPENDS ${same_library})
endif()

if("python" IN_LIST components)
  find_package(Python REQUIRED COMPONENTS Interpreter)
  math(EXPR next_minor "${Python_VERSION_MINOR} + 1")
  orvel_package(python
    NAME python3-orvelcommands
    SECTION python
    SUMMARY "parameter model of an optimization job (Python module)"
    DESCRIPTION "The module orvelcommands reads the typed commands of an optimization job\nfrom Python and fills its parameter file."
    DEPENDS ${same_library}
      "python3 (>= ${Python_VERSION_MAJOR}.${Python_VERSION_MINOR})"
      "python3 (<< ${Python_VERSION_MAJOR}.${next_minor})")
endif()

orvel_package(doc
  NAME orvelcommands-doc
  SECTION doc
  SUMMARY "parameter model of an optimization job (documentation)"
  DESCRIPTION "${what_it_is}\nThis package holds its documentation, example jobs and example projects.")
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)

set(CPACK_PACKAGE_NAME orvelcommands)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has a first line of its own
set(CPACK_PACKAGE_CONTACT "OrvelCommands maintainers <maintainers@orvel.invalid>")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "")
get_property(modules GLOBAL PROPERTY ORVEL_MODULES)
foreach(module IN LISTS modules)
  get_target_property(folder ${module} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endforeach()
include(CPack)
