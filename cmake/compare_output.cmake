# Runs PROGRAM with ARGUMENT and compares its standard output with the file EXPECTED, line ends apart:
#   cmake -DPROGRAM=... -DARGUMENT=... -DEXPECTED=... -DACTUAL=... -P compare_output.cmake
# ACTUAL is where the output is kept. -DEMULATOR=... names what runs programs for another system.
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" "${ARGUMENT}" OUTPUT_FILE "${ACTUAL}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files --ignore-eol "${EXPECTED}" "${ACTUAL}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    file(READ "${ACTUAL}" output)
    message(FATAL_ERROR "The output differs from ${EXPECTED}; it is:\n${output}")
endif()
