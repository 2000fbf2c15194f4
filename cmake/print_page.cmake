# Writes what `PROGRAM --print PAGE` prints to FILE, if it ends well:
#   cmake -DPROGRAM=... -DPAGE=... -DFILE=... -P print_page.cmake
execute_process(COMMAND "${PROGRAM}" --print "${PAGE}" OUTPUT_VARIABLE text RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} --print ${PAGE} ended with ${result}")
endif()
file(WRITE "${FILE}" "${text}")
