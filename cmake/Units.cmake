# compile_in_units(TARGET...): where sources are compiled together (DOZEWELL_UNITY), those of these
# targets that share names are not. Configure again when a name has come to be in two sources.
function(compile_in_units)
  if(NOT CMAKE_UNITY_BUILD)
    return()
  endif()
  foreach(target ${ARGN})
    get_target_property(folder ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(TRANSFORM sources PREPEND ${folder}/ REGEX "^[^/]")
    execute_process(COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/cmake/units.py ${sources}
                    OUTPUT_VARIABLE numbers COMMAND_ERROR_IS_FATAL ANY)
    foreach(source number IN ZIP_LISTS sources numbers)
      set_property(SOURCE ${source} TARGET_DIRECTORY ${target} PROPERTY UNITY_GROUP ${number})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
  endforeach()
endfunction()
