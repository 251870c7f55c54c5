# SPDX-License-Identifier: MIT
# Runs HOST with PLUGIN once and fails unless the plug-in's table shows exactly the
# records of the host's own libsdk.
execute_process(COMMAND ${HOST} ${PLUGIN} --once OUTPUT_VARIABLE shown RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "the host ended with status ${status}")
endif()
string(REGEX MATCHALL "row: [^\n]+" rows "${shown}")
list(SORT rows)
set(expected "row: internet.example;row: internet.example;row: web.example")
if(NOT rows STREQUAL expected)
    message(FATAL_ERROR "shown: ${rows}\nexpected: ${expected}")
endif()
