# SPDX-License-Identifier: MIT
# NETINFORECORD_VERSION, as the headers have it.
set(NETINFORECORD_VERSION "")
foreach(part MAJOR MINOR PATCH)
    file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/../host/NetInfoRecordVersion.h definition
        REGEX "^#define NETINFORECORD_VERSION_${part} [0-9]+$")
    string(REGEX MATCH "[0-9]+$" number "${definition}")
    list(APPEND NETINFORECORD_VERSION ${number})
endforeach()
list(JOIN NETINFORECORD_VERSION "." NETINFORECORD_VERSION)
