# SPDX-License-Identifier: MIT
# Most of what a test takes to compile are Qt's headers, so all tests share
# them compiled once. Qt tells each test its own folder, for data files that
# these tests do not have; what they share must not differ.
get_target_property(definitions Qt${QT_VERSION_MAJOR}::Test INTERFACE_COMPILE_DEFINITIONS)
list(FILTER definitions EXCLUDE REGEX QT_TESTCASE_)
set_target_properties(Qt${QT_VERSION_MAJOR}::Test PROPERTIES
    INTERFACE_COMPILE_DEFINITIONS "${definitions}")
netinforecord_header_library(test_headers)
target_link_libraries(test_headers PRIVATE
    netinforecord_settings Qt${QT_VERSION_MAJOR}::Test Qt${QT_VERSION_MAJOR}::Widgets)
target_precompile_headers(test_headers PRIVATE
    <QTest> <QSignalSpy> <QTemporaryDir> <QApplication> <QProcess> <QRegularExpression>
    <QTableWidget> <algorithm> <functional> <memory> <string> <vector>)

# netinforecord_test_library(NAME FILES...): what several tests share. Others include its
# headers by their names alone.
function(netinforecord_test_library name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name}
        PUBLIC Qt${QT_VERSION_MAJOR}::Test Qt${QT_VERSION_MAJOR}::Widgets
        PRIVATE netinforecord_settings)
    target_precompile_headers(${name} REUSE_FROM test_headers)
endfunction()

if(NETINFORECORD_SANITIZE)
    add_library(ended_threads OBJECT EndedThreads.cpp)
    set_target_properties(ended_threads PROPERTIES AUTOMOC OFF)
    target_link_libraries(ended_threads PRIVATE netinforecord_settings)
endif()

# Makes the NAME.moc that NAME.cpp includes. AUTOMOC would take two programs more and one
# more file to compile for each test.
function(netinforecord_moc_test name)
    set(moc ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    cmake_language(CALL qt${QT_VERSION_MAJOR}_generate_moc ${name}.cpp ${moc} TARGET ${name})
    target_sources(${name} PRIVATE ${moc})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()

# netinforecord_moc_class(NAME CLASS): the class of CLASS.h, part of the test NAME, has
# slots or signals.
function(netinforecord_moc_class name class)
    set(moc ${CMAKE_CURRENT_BINARY_DIR}/${name}_moc_${class}.cpp)
    cmake_language(CALL qt${QT_VERSION_MAJOR}_generate_moc ${class}.h ${moc} TARGET ${name})
    target_sources(${name} PRIVATE ${moc})
endfunction()

# netinforecord_add_test(NAME LIBRARIES...): one QtTest program, NAME.cpp.
# Tests run without a display, in one time zone and locale, and never see the
# user's own settings or history.
function(netinforecord_add_test name)
    add_executable(${name} ${name}.cpp)
    if(NETINFORECORD_SANITIZE)
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:ended_threads>)
    endif()
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE
        netinforecord_settings Qt${QT_VERSION_MAJOR}::Test Qt${QT_VERSION_MAJOR}::Widgets ${ARGN})
    target_precompile_headers(${name} REUSE_FROM test_headers)
    netinforecord_moc_test(${name})
    add_test(NAME ${name} COMMAND ${name})
    get_filename_component(label ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    set_tests_properties(${name} PROPERTIES LABELS ${label})
    netinforecord_test_environment(${name})
endfunction()

function(netinforecord_test_environment name)
    set(home ${CMAKE_BINARY_DIR}/tests/home/${name})
    file(MAKE_DIRECTORY ${home})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=Europe/Berlin;LC_ALL=C.UTF-8;HOME=${home};XDG_DATA_HOME=${home}/data;XDG_CONFIG_HOME=${home}/config;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks.supp:print_suppressions=0")
endfunction()
