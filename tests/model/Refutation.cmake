# Gives the model a wrong RULE and requires a night that refutes it, in words and as a script that
# fails when it is played.
set(script ${CMAKE_CURRENT_BINARY_DIR}/refutes-${RULE}.phone)
file(REMOVE ${script})
execute_process(
  COMMAND ${MODEL_NIGHTS} --tweak ${TWEAK} --package ${PACKAGE} --nights 500 --wrong-rule ${RULE}
          --counterexample ${script}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT status EQUAL 1 OR NOT output MATCHES "Wrong in this night")
  message(FATAL_ERROR "expected a night that refutes ${RULE}, found status ${status}:\n${output}")
endif()
execute_process(COMMAND ${PLAYER} play --quiet ${script} RESULT_VARIABLE status
                ERROR_VARIABLE output)
if(NOT status EQUAL 1 OR NOT output MATCHES "refutes-${RULE}.phone:[0-9]+:[0-9]+: .*expected")
  message(FATAL_ERROR "expected that ${script} fails, found status ${status}:\n${output}")
endif()
message("${output}")
