# Part of a package's configuration file. Of the components that find_package asks for, marks those in <package>_COMPONENTS as
# found, and refuses the others in words that name those that the package has.
#
#   orvel_check_components(<package>)
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
