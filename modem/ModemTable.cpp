// SPDX-License-Identifier: MIT
#include "modem/ModemTable.h"

#include "modem/Names.h"

#include <algorithm>

namespace modem
{

namespace
{

/// More than a computer has; a daemon that tells of more is not believed.
constexpr std::size_t mostModems = 64;

void append(ModemTable::Questions &questions, const ModemTable::Questions &more)
{
    questions.insert(questions.end(), more.begin(), more.end());
}

} // namespace

ModemTable::Questions ModemTable::setModems(const Objects &objects)
{
    m_isListed = true;
    for (auto modem = m_modems.begin(); modem != m_modems.end();) {
        const bool isListed = objects.contains(QDBusObjectPath(modem->first));
        modem = isListed ? std::next(modem) : m_modems.erase(modem);
    }
    Questions questions;
    for (auto object = objects.begin(); object != objects.end(); ++object)
        append(questions, addInterfaces(object.key().path(), object.value()));
    return questions;
}

ModemTable::Questions ModemTable::addInterfaces(const QString &path, const Interfaces &interfaces)
{
    const auto known = m_modems.find(path);
    if (known != m_modems.end())
        return known->second.update(interfaces);
    if (!interfaces.contains(names::modemInterface) || m_modems.size() >= mostModems)
        return {};
    Modem modem;
    modem.sim.emplace();
    Questions questions = modem.update(interfaces);
    m_modems.emplace(path, std::move(modem));
    return questions;
}

void ModemTable::removeInterfaces(const QString &path, const QStringList &interfaceNames)
{
    const auto modem = m_modems.find(path);
    if (modem == m_modems.end())
        return;
    if (interfaceNames.contains(names::modemInterface)) {
        m_modems.erase(modem);
    } else if (interfaceNames.contains(names::registrationInterface)) {
        modem->second.registration = {};
        modem->second.settle();
    }
}

ModemTable::Questions ModemTable::changeProperties(const QString &path,
                                                   const QString &interfaceName,
                                                   const QVariantMap &properties)
{
    const auto modem = m_modems.find(path);
    if (modem != m_modems.end())
        return modem->second.update({{interfaceName, properties}});
    for (auto &[modemPath, owner] : m_modems)
        owner.learn({path, interfaceName}, properties, false);
    return {};
}

void ModemTable::answer(const Question &question, const QVariantMap &properties)
{
    for (auto &[modemPath, owner] : m_modems)
        owner.learn(question, properties, true);
}

std::map<QString, DataPort> ModemTable::ports() const
{
    std::map<QString, DataPort> ports;
    for (const auto &[path, modem] : m_modems) {
        if (!modem.isKnown)
            continue;
        for (const DataPort &port : modem.ports()) {
            const auto [place, isNew] = ports.emplace(port.interfaceName, port);
            if (!isNew && !place->second.isConnected)
                place->second = port;
        }
    }
    return ports;
}

bool ModemTable::isComplete() const
{
    return m_isListed && std::all_of(m_modems.begin(), m_modems.end(),
                                     [](const auto &modem) { return modem.second.isKnown; });
}

ModemTable::Questions ModemTable::Modem::update(const Interfaces &interfaces)
{
    const QString formerSim = facts.simPath;
    modem::update(facts, interfaces.value(names::modemInterface));
    modem::update(registration, interfaces.value(names::registrationInterface));
    Questions questions = followSim(formerSim);
    append(questions, followBearers());
    settle();
    return questions;
}

/// Takes in what an object tells of itself: everything, or what has changed since.
void ModemTable::Modem::learn(const Question &about, const QVariantMap &properties, bool areAll)
{
    const auto take = [&](auto &object) {
        if (areAll)
            object.emplace();
        // What has changed before the answer is part of the answer.
        if (object)
            modem::update(*object, properties);
    };
    if (about.interfaceName == names::simInterface && about.path == facts.simPath)
        take(sim);
    const auto bearer = bearers.find(about.path);
    if (about.interfaceName == names::bearerInterface && bearer != bearers.end())
        take(bearer->second);
    settle();
}

ModemTable::Questions ModemTable::Modem::followSim(const QString &formerPath)
{
    if (facts.simPath == formerPath)
        return {};
    sim.reset();
    if (facts.simPath.isEmpty()) {
        sim.emplace();
        return {};
    }
    return {{facts.simPath, names::simInterface}};
}

ModemTable::Questions ModemTable::Modem::followBearers()
{
    Questions questions;
    std::map<QString, std::optional<BearerFacts>> listed;
    for (const QString &path : facts.bearerPaths) {
        const auto known = bearers.find(path);
        if (known == bearers.end())
            questions.push_back({path, names::bearerInterface});
        listed.emplace(path, known == bearers.end() ? std::nullopt : known->second);
    }
    bearers = std::move(listed);
    return questions;
}

void ModemTable::Modem::settle()
{
    isKnown = isKnown ||
              (sim && std::all_of(bearers.begin(), bearers.end(),
                                  [](const auto &bearer) { return bearer.second.has_value(); }));
    // While a modem looks for a network that it has lost, a bearer lasts for seconds: until
    // there is another network, its bytes are those of the last one.
    const bool isLooking = isConnected() && registration.roaming == Roaming::Unknown &&
                           network.registration.roaming != Roaming::Unknown;
    if (!isLooking)
        network = {registration, facts.technology};
}

bool ModemTable::Modem::isConnected() const
{
    return std::any_of(bearers.begin(), bearers.end(), [this](const auto &bearer) {
        return bearer.second && uses(*bearer.second);
    });
}

/// Whether the bearer's data goes through a network interface; a serial line, which
/// PPP runs over, is none.
bool ModemTable::Modem::uses(const BearerFacts &bearer) const
{
    return bearer.isConnected && !bearer.interfaceName.isEmpty() &&
           !facts.otherPorts.contains(bearer.interfaceName);
}

Subscriber ModemTable::Modem::subscriber() const
{
    Subscriber subscriber;
    subscriber.operatorName = network.registration.operatorName;
    subscriber.operatorCode = network.registration.operatorCode;
    subscriber.sim = sim ? sim->number : QString();
    subscriber.technology = network.technology;
    subscriber.modem = (facts.manufacturer + QLatin1Char(' ') + facts.model).trimmed();
    subscriber.roaming = network.registration.roaming;
    return subscriber;
}

std::vector<DataPort> ModemTable::Modem::ports() const
{
    std::vector<DataPort> ports;
    const Subscriber owner = subscriber();
    for (const auto &[path, bearer] : bearers) {
        if (!bearer || !uses(*bearer))
            continue;
        ports.push_back({bearer->interfaceName, true, owner});
        ports.back().subscriber.apn =
            bearer->apn.isEmpty() ? network.registration.initialApn : bearer->apn;
    }
    for (const QString &name : facts.networkPorts)
        ports.push_back({name, false, owner});
    return ports;
}

} // namespace modem
