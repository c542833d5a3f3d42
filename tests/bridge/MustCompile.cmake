# Runs the compiler on SOURCE, which must compile.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -DOBJC_CHECK_TYPES -I${INCLUDE} ${SOURCE}
                COMMAND_ERROR_IS_FATAL ANY)
