# Runs the compiler on SOURCE, which must not compile, and looks in what it says for the regular
# expression of the source's first line: "// expected: ...".
cmake_minimum_required(VERSION 3.25)

file(STRINGS ${SOURCE} first LIMIT_COUNT 1)
if(NOT first MATCHES "^// expected: (.+)$")
  message(FATAL_ERROR "${SOURCE} does not begin with '// expected: message'")
endif()
set(expected "${CMAKE_MATCH_1}")

execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -DOBJC_CHECK_TYPES -I${INCLUDE} ${SOURCE}
                RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
if(status EQUAL 0)
  message(FATAL_ERROR "${SOURCE} compiles; expected: ${expected}")
endif()
if(NOT said MATCHES "${expected}")
  message(FATAL_ERROR "${SOURCE} fails without saying: ${expected}\n${said}")
endif()
