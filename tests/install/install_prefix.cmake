# Installs BUILD into PREFIX, of which nothing is left from before.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
