# SPDX-License-Identifier: MIT
# What every target of this project is compiled with. Link it PRIVATE.
add_library(netinforecord_settings INTERFACE)
target_compile_features(netinforecord_settings INTERFACE cxx_std_17)
target_compile_options(netinforecord_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow
    $<$<BOOL:${NETINFORECORD_WERROR}>:-Werror>)

# Optimised builds notice overflows and write-protect their tables of addresses once
# they are filled. The sanitizers watch over the same functions in their own way.
if(NOT NETINFORECORD_SANITIZE)
    set(optimised $<CONFIG:Release,RelWithDebInfo,MinSizeRel>)
    add_compile_options(
        "$<${optimised}:SHELL:-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>")
    add_link_options($<${optimised}:LINKER:-z,relro,-z,now>)
endif()

if(NETINFORECORD_SANITIZE)
    # A folder may ask for others.
    define_property(TARGET PROPERTY SANITIZERS INHERITED)
    set_property(DIRECTORY PROPERTY SANITIZERS ${NETINFORECORD_SANITIZE})
    target_compile_options(netinforecord_settings INTERFACE
        -fsanitize=$<TARGET_PROPERTY:SANITIZERS>
        -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(netinforecord_settings INTERFACE -fsanitize=${NETINFORECORD_SANITIZE})
    # The tests start programs thousands of times, each of which would relocate the tables
    # of the sanitizers first, a million addresses.
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-no-pie>)
endif()

# Programs for tests take long to link; lld, where it is there, needs a fifth of the time.
find_program(NETINFORECORD_LLD ld.lld)
function(netinforecord_link_quickly)
    if(NETINFORECORD_LLD)
        set_property(DIRECTORY APPEND PROPERTY LINK_OPTIONS -fuse-ld=lld)
    endif()
endfunction()
if(NETINFORECORD_SANITIZE)
    netinforecord_link_quickly()
endif()

# Lets fuzzers see which branches of a target an input takes. Of everything, this would be
# an eighth of the compiler's time, and of what a program does at its start.
function(netinforecord_fuzzed target)
    if(NETINFORECORD_FUZZ)
        set_target_properties(${target} PROPERTIES
            SANITIZERS ${NETINFORECORD_SANITIZE},fuzzer-no-link)
    endif()
endfunction()

# A library that is nothing but its precompiled header, for other targets to use too.
function(netinforecord_header_library target)
    file(CONFIGURE OUTPUT ${target}.cpp CONTENT "// Nothing but its precompiled header.\n")
    add_library(${target} STATIC ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp)
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
endfunction()

# Most of what a sanitized build takes to compile are the headers of libraries, so its
# files share those compiled once.
function(netinforecord_shared_headers target kind)
    netinforecord_header_library(${target})
    set_target_properties(${target} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_link_libraries(${target} PRIVATE netinforecord_settings Qt${QT_VERSION_MAJOR}::${kind})
    target_precompile_headers(${target} PRIVATE
        <algorithm> <filesystem> <functional> <map> <memory> <optional> <string> <variant>
        <vector> <QDateTime> <QHash> <QObject> <QTimer>)
    if(kind STREQUAL Widgets)
        target_precompile_headers(${target} PRIVATE
            <QApplication> <QMenu> <QMessageBox> <QSettings> <QTableWidget>)
    endif()
endfunction()
if(NETINFORECORD_SANITIZE)
    foreach(kind Core Widgets)
        netinforecord_shared_headers(shared_headers_${kind} ${kind})
        if(NETINFORECORD_FUZZ)
            netinforecord_shared_headers(fuzzed_headers_${kind} ${kind})
            netinforecord_fuzzed(fuzzed_headers_${kind})
        endif()
    endforeach()
endif()

# A target whose files include those of Qt Core, or of Qt Widgets too. One that is fuzzed
# says so before.
function(netinforecord_share_headers target kind)
    if(NETINFORECORD_SANITIZE)
        get_target_property(sanitizers ${target} SANITIZERS)
        set(headers shared_headers_${kind})
        if(sanitizers MATCHES fuzzer)
            set(headers fuzzed_headers_${kind})
        endif()
        target_precompile_headers(${target} REUSE_FROM ${headers})
    endif()
endfunction()

# The code of one folder, linked into whatever needs it. Others include its headers
# by the folder's name.
function(netinforecord_folder_library target)
    set_target_properties(${target} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${target} PRIVATE netinforecord_settings)
    netinforecord_count_coverage(${target})
endfunction()

# Counts what runs of these sources, for scripts/coverage.sh.
function(netinforecord_count_coverage target)
    if(NETINFORECORD_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} INTERFACE --coverage)
    endif()
endfunction()

# A library or module of the product: hidden symbols, found by its siblings
# through $ORIGIN, no other path kept in it.
function(netinforecord_private_library target)
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "$ORIGIN")
    target_link_libraries(${target} PRIVATE netinforecord_settings)
    install(TARGETS ${target} LIBRARY DESTINATION ${NETINFORECORD_PRIVATE_LIBDIR})
endfunction()

# Lets a library give away what its exports.map names, and nothing else.
function(netinforecord_exports target)
    set(map ${CMAKE_CURRENT_SOURCE_DIR}/exports.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${map})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
endfunction()

# A program of the product.
function(netinforecord_program target)
    target_link_libraries(${target} PRIVATE netinforecord_settings)
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()
