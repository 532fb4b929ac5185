# Refuses components that a package does not have, in words that name those it has, and marks those it has as found.
#
#   orvel_check_components(<package> <component> ...)
macro(orvel_check_components package)
  foreach(component IN LISTS ${package}_FIND_COMPONENTS)
    if("${component}" IN_LIST ${package}_COMPONENTS)
      set(${package}_${component}_FOUND TRUE)
    elseif(${package}_FIND_REQUIRED_${component})
      list(JOIN ${package}_COMPONENTS ", " components)
      set(${package}_FOUND FALSE)
      set(${package}_NOT_FOUND_MESSAGE
        "${package} has no component \"${component}\" here. It has: ${components}.")
    endif()
  endforeach()
endmacro()
