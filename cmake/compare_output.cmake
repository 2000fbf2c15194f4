# Runs PROGRAM with ARGUMENT and compares its standard output byte for byte with the file EXPECTED:
#   cmake -DPROGRAM=... -DARGUMENT=... -DEXPECTED=... -DACTUAL=... -P compare_output.cmake
# ACTUAL is where the output is kept.
execute_process(COMMAND "${PROGRAM}" "${ARGUMENT}" OUTPUT_FILE "${ACTUAL}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${EXPECTED}" "${ACTUAL}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    file(READ "${ACTUAL}" output)
    message(FATAL_ERROR "The output differs from ${EXPECTED}; it is:\n${output}")
endif()
