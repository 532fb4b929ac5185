include(CMakeFindDependencyMacro)
find_dependency(OrvelCommands CONFIG)
include("${CMAKE_CURRENT_LIST_DIR}/FilterReportTargets.cmake")
