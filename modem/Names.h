// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>

namespace modem
{

/// A literal whose length the compiler counts.
template <int size>
constexpr QLatin1String latin1(const char (&literal)[size])
{
    return QLatin1String(literal, size - 1);
}

} // namespace modem

namespace modem::names
{

constexpr QLatin1String service = latin1("org.freedesktop.ModemManager1");
constexpr QLatin1String root = latin1("/org/freedesktop/ModemManager1");
constexpr QLatin1String modemInterface = latin1("org.freedesktop.ModemManager1.Modem");
constexpr QLatin1String registrationInterface =
    latin1("org.freedesktop.ModemManager1.Modem.Modem3gpp");
constexpr QLatin1String bearerInterface = latin1("org.freedesktop.ModemManager1.Bearer");
constexpr QLatin1String simInterface = latin1("org.freedesktop.ModemManager1.Sim");

constexpr QLatin1String bus = latin1("org.freedesktop.DBus");
constexpr QLatin1String busPath = latin1("/org/freedesktop/DBus");
constexpr QLatin1String propertiesInterface = latin1("org.freedesktop.DBus.Properties");
constexpr QLatin1String ownerChanged = latin1("NameOwnerChanged");
constexpr QLatin1String propertiesChanged = latin1("PropertiesChanged");
constexpr QLatin1String objectsInterface = latin1("org.freedesktop.DBus.ObjectManager");

} // namespace modem::names
