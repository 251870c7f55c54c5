// SPDX-License-Identifier: MIT
#pragma once

#include "modem/DataPort.h"

#include <QString>
#include <QStringList>
#include <QVariant>

namespace modem
{

// What the properties of ModemManager's objects say. Each update() takes the properties
// that have changed; one that is there without a sane value is not known any more.

/// Of org.freedesktop.ModemManager1.Modem.
struct ModemFacts {
    QString manufacturer;
    QString model;
    QString simPath; ///< empty without a SIM
    QStringList bearerPaths;
    QStringList networkPorts; ///< interfaces that carry data
    QStringList otherPorts;   ///< names of serial lines and the like
    QString technology;
};

/// Of org.freedesktop.ModemManager1.Modem.Modem3gpp.
struct RegistrationFacts {
    Roaming roaming = Roaming::Unknown;
    QString operatorName;
    QString operatorCode;
    QString initialApn; ///< which the modem asks for when it registers
};

/// Of org.freedesktop.ModemManager1.Bearer.
struct BearerFacts {
    bool isConnected = false;
    QString interfaceName;
    QString apn;
};

/// Of org.freedesktop.ModemManager1.Sim.
struct SimFacts {
    QString number;
};

void update(ModemFacts &facts, const QVariantMap &properties);
void update(RegistrationFacts &facts, const QVariantMap &properties);
void update(BearerFacts &facts, const QVariantMap &properties);
void update(SimFacts &facts, const QVariantMap &properties);

} // namespace modem
