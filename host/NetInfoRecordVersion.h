/* SPDX-License-Identifier: MIT */
#pragma once

/* The version of these headers and of the plug-in that comes with them. The build
   and the packages read it here. */
#define NETINFORECORD_VERSION_MAJOR 0
#define NETINFORECORD_VERSION_MINOR 1
#define NETINFORECORD_VERSION_PATCH 0

/* Two hexadecimal digits each, for comparisons: 1.2.3 is 0x010203. */
#define NETINFORECORD_VERSION                                                                      \
    (NETINFORECORD_VERSION_MAJOR << 16 | NETINFORECORD_VERSION_MINOR << 8 |                        \
     NETINFORECORD_VERSION_PATCH)
