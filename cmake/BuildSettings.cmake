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
    target_compile_options(netinforecord_settings INTERFACE
        -fsanitize=${NETINFORECORD_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(netinforecord_settings INTERFACE -fsanitize=${NETINFORECORD_SANITIZE})
endif()

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

# A program of the product: finds the libraries above relative to itself.
function(netinforecord_program target)
    set_target_properties(${target} PROPERTIES
        BUILD_WITH_INSTALL_RPATH ON
        INSTALL_RPATH "$ORIGIN/${NETINFORECORD_LIBDIR_FROM_BINDIR}")
    target_link_libraries(${target} PRIVATE netinforecord_settings)
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()
