// SPDX-License-Identifier: MIT
#pragma once

#include "modem/DataPort.h"
#include "modem/Facts.h"

#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <optional>
#include <vector>

namespace modem
{

/// The modems that the daemon has told of, and what follows from it for network
/// interfaces. Knows nothing of a bus: whoever has one brings the news and asks for
/// the objects' properties.
class ModemTable
{
public:
    using Interfaces = QMap<QString, QVariantMap>; ///< properties by the interface's name
    using Objects = QMap<QDBusObjectPath, Interfaces>;

    /// An object whose properties are to be asked for.
    struct Question {
        QString path;
        QString interfaceName;
    };
    using Questions = std::vector<Question>;

    /// These are all modems there are.
    Questions setModems(const Objects &objects);
    Questions addInterfaces(const QString &path, const Interfaces &interfaces);
    void removeInterfaces(const QString &path, const QStringList &interfaceNames);
    /// A property that has lost its value has an invalid one.
    Questions changeProperties(const QString &path, const QString &interfaceName,
                               const QVariantMap &properties);
    /// All properties of the object; none if it could not answer.
    void answer(const Question &question, const QVariantMap &properties);

    /// The ports of those modems of which everything is known.
    std::map<QString, DataPort> ports() const;
    /// Whether everything is known of every modem.
    bool isComplete() const;

private:
    struct Network {
        RegistrationFacts registration;
        QString technology;
    };

    struct Modem {
        ModemFacts facts;
        RegistrationFacts registration;
        std::optional<SimFacts> sim; ///< none: there is one that has not answered yet
        std::map<QString, std::optional<BearerFacts>> bearers; ///< by path, likewise
        Network network;      ///< which counts for what the bearers move
        bool isKnown = false; ///< everything has been answered once

        Questions update(const Interfaces &interfaces);
        void learn(const Question &about, const QVariantMap &properties, bool areAll);
        Questions followSim(const QString &formerPath);
        Questions followBearers();
        void settle();
        bool isConnected() const;
        bool uses(const BearerFacts &bearer) const;
        Subscriber subscriber() const;
        std::vector<DataPort> ports() const;
    };

    std::map<QString, Modem> m_modems; ///< by path
    bool m_isListed = false;
};

} // namespace modem
