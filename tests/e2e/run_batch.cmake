# Runs one batch script through zolt-cli and compares what it printed with the
# expected transcript beside the script.
execute_process(COMMAND ${CLI} batch ${SCRIPT}
    OUTPUT_VARIABLE actual ERROR_VARIABLE errors RESULT_VARIABLE status)
file(READ ${EXPECTED} expected)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "zolt-cli exited with ${status}: ${errors}")
endif()
if(NOT actual STREQUAL expected)
    message(FATAL_ERROR "transcript differs.\n--- expected\n${expected}\n--- actual\n${actual}")
endif()
