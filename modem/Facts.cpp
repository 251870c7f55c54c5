// SPDX-License-Identifier: MIT
#include "modem/Facts.h"

#include "modem/DBusValue.h"

#include <algorithm>

namespace modem
{

namespace
{

constexpr uint networkPort = 2;

/// Bits of AccessTechnologies, the newest first.
constexpr struct {
    uint bit;
    const char *name;
} technologies[] = {
    {15, "5gnr"},       {14, "lte"},   {16, "lte-cat-m"}, {17, "lte-nb-iot"}, {13, "evdob"},
    {12, "evdoa"},      {11, "evdo0"}, {10, "1xrtt"},     {9, "hspa-plus"},   {8, "hspa"},
    {7, "hsupa"},       {6, "hsdpa"},  {5, "umts"},       {4, "edge"},        {3, "gprs"},
    {2, "gsm-compact"}, {1, "gsm"},    {0, "pots"},
};

QString technologyOf(const QVariant &value)
{
    const uint bits = numberOf(value);
    if (bits == 0xFFFFFFFF) // "any" is none in particular
        return {};
    const auto newest =
        std::find_if(std::begin(technologies), std::end(technologies),
                     [bits](const auto &technology) { return (bits >> technology.bit & 1) != 0; });
    return newest == std::end(technologies) ? QString() : QString::fromLatin1(newest->name);
}

/// Of RegistrationState: with all services, for short messages only, or without
/// preference for calls over the packet network.
Roaming roamingOf(const QVariant &value)
{
    switch (numberOf(value)) {
    case 1:
    case 6:
    case 9:
        return Roaming::Home;
    case 5:
    case 7:
    case 10:
        return Roaming::Roaming;
    default:
        return Roaming::Unknown;
    }
}

QString apnOf(const QVariant &settings)
{
    return textOf(mapOf(settings).value(QStringLiteral("apn")));
}

void sortPorts(ModemFacts &facts, const QVariant &value)
{
    facts.networkPorts.clear();
    facts.otherPorts.clear();
    for (const NamedPort &port : portsOf(value)) {
        const QString name = interfaceNameOf(port.name);
        if (!name.isEmpty())
            (port.type == networkPort ? facts.networkPorts : facts.otherPorts).append(name);
    }
}

/// Reads the property into the field if it is among those that have changed.
template <typename Field, typename Read>
void take(const QVariantMap &properties, const char *name, Field &field, Read read)
{
    const auto found = properties.find(QLatin1String(name));
    if (found != properties.end())
        field = read(*found);
}

} // namespace

void update(ModemFacts &facts, const QVariantMap &properties)
{
    take(properties, "Manufacturer", facts.manufacturer, textOf);
    take(properties, "Model", facts.model, textOf);
    take(properties, "Sim", facts.simPath, pathOf);
    take(properties, "Bearers", facts.bearerPaths, pathsOf);
    take(properties, "AccessTechnologies", facts.technology, technologyOf);
    const auto ports = properties.find(QStringLiteral("Ports"));
    if (ports != properties.end())
        sortPorts(facts, *ports);
}

void update(RegistrationFacts &facts, const QVariantMap &properties)
{
    take(properties, "RegistrationState", facts.roaming, roamingOf);
    take(properties, "OperatorName", facts.operatorName, textOf);
    take(properties, "OperatorCode", facts.operatorCode, operatorCodeOf);
    take(properties, "InitialEpsBearerSettings", facts.initialApn, apnOf);
}

void update(BearerFacts &facts, const QVariantMap &properties)
{
    take(properties, "Connected", facts.isConnected, flagOf);
    take(properties, "Interface", facts.interfaceName, interfaceNameOf);
    take(properties, "Properties", facts.apn, apnOf);
}

void update(SimFacts &facts, const QVariantMap &properties)
{
    take(properties, "SimIdentifier", facts.number, simNumberOf);
}

} // namespace modem
