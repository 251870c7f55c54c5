# SPDX-License-Identifier: MIT
# Run with -P: writes those texts of the .ts file INPUT that are of CONTEXT alone to OUTPUT.
file(READ ${INPUT} texts)
string(FIND "${texts}" "<context>" first)
string(SUBSTRING "${texts}" 0 ${first} head)
string(FIND "${texts}" "<name>${CONTEXT}</name>" name)
if(name EQUAL -1)
    message(FATAL_ERROR "${INPUT} has no context ${CONTEXT}.")
endif()
string(SUBSTRING "${texts}" ${name} -1 rest)
string(FIND "${rest}" "</context>" end)
string(SUBSTRING "${rest}" 0 ${end} context)
file(WRITE ${OUTPUT} "${head}<context>\n    ${context}</context>\n</TS>\n")
