# SPDX-License-Identifier: MIT
# How the build of a host finds the plug-in and its headers once they are installed:
# find_package(NetInfoRecord), and pkg-config.
include(CMakePackageConfigHelpers)

set(package ${CMAKE_BINARY_DIR}/package)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/NetInfoRecord)
configure_package_config_file(cmake/NetInfoRecordConfig.cmake.in
    ${package}/NetInfoRecordConfig.cmake
    INSTALL_DESTINATION ${package_folder}
    PATH_VARS NETINFORECORD_PLUGINDIR)
# The plug-in is a library of C++ and Qt: one for 64 bits serves no other build.
write_basic_package_version_file(${package}/NetInfoRecordConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${package}/NetInfoRecordConfig.cmake
    ${package}/NetInfoRecordConfigVersion.cmake
    DESTINATION ${package_folder}
    COMPONENT plugin)
install(EXPORT NetInfoRecordTargets
    NAMESPACE NetInfoRecord::
    DESTINATION ${package_folder}
    COMPONENT plugin)

# Relative, so that it holds wherever it is installed.
file(RELATIVE_PATH prefix_from_pkgconfig
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/netinforecord.pc.in ${package}/netinforecord.pc @ONLY)
install(FILES ${package}/netinforecord.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT plugin)

install(FILES docs/hosting.md CHANGELOG.md LICENSE
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/netinforecord
    COMPONENT plugin)
