# SPDX-License-Identifier: MIT
# netinforecord_add_test(NAME LIBRARIES...): one QtTest program, NAME.cpp.
# Tests run without a display, in one time zone and locale, and never see the
# user's own settings or history.
function(netinforecord_add_test name)
    add_executable(${name} ${name}.cpp)
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE
        netinforecord_settings Qt${QT_VERSION_MAJOR}::Test ${ARGN})
    add_test(NAME ${name} COMMAND ${name})
    netinforecord_test_environment(${name})
endfunction()

function(netinforecord_test_environment name)
    set(home ${CMAKE_BINARY_DIR}/tests/home/${name})
    file(MAKE_DIRECTORY ${home})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=Europe/Berlin;LC_ALL=C.UTF-8;HOME=${home};XDG_DATA_HOME=${home}/data;XDG_CONFIG_HOME=${home}/config;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")
endfunction()
