# cmake -P build.cmake PRESET TARGET...: builds targets of another preset, which need not have been configured.
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(place RANGE 4 ${last})
  list(APPEND targets ${CMAKE_ARGV${place}})
endforeach()
set(preset ${CMAKE_ARGV3})
if(NOT EXISTS build/${preset}/build.ninja)
  execute_process(COMMAND ${CMAKE_COMMAND} --preset ${preset} COMMAND_ERROR_IS_FATAL ANY)
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build --preset ${preset} --target ${targets}
                COMMAND_ERROR_IS_FATAL ANY)
