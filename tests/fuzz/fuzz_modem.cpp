// SPDX-License-Identifier: MIT
// What ModemManager answers and tells: objects, interfaces and properties with values of
// any type, in any order, through the table of modems.
#include "ByteReader.h"
#include "Fuzz.h"
#include "modem/DBusValue.h"
#include "modem/ModemTable.h"
#include "modem/Names.h"

#include <QDBusObjectPath>

#include <algorithm>
#include <deque>

using namespace modem;

namespace
{

constexpr const char *propertyNames[] = {
    "Manufacturer",
    "Model",
    "Sim",
    "Bearers",
    "Ports",
    "RegistrationState",
    "OperatorName",
    "OperatorCode",
    "InitialEpsBearerSettings",
    "AccessTechnologies",
    "Connected",
    "Interface",
    "Properties",
    "SimIdentifier",
};

/// As it would come over the bus, made of the fuzzer's bytes.
class Daemon
{
public:
    explicit Daemon(fuzz::ByteReader &bytes)
        : m_bytes(bytes)
    {
    }

    QString path()
    {
        const QLatin1String kinds[] = {names::root, names::service};
        return QStringLiteral("/%1/%2").arg(kinds[m_bytes.below(2)]).arg(m_bytes.below(4));
    }

    QString interfaceName()
    {
        const QLatin1String known[] = {names::modemInterface, names::registrationInterface,
                                       names::bearerInterface, names::simInterface, names::bus};
        return known[m_bytes.below(5)];
    }

    QVariantMap properties()
    {
        QVariantMap map;
        for (int left = m_bytes.below(8); left > 0; --left) {
            const char *const name = propertyNames[m_bytes.below(std::size(propertyNames))];
            map.insert(QString::fromLatin1(name), value());
        }
        return map;
    }

    ModemTable::Interfaces interfaces()
    {
        ModemTable::Interfaces interfaces;
        for (int left = m_bytes.below(4); left > 0; --left)
            interfaces.insert(interfaceName(), properties());
        return interfaces;
    }

    ModemTable::Objects objects()
    {
        ModemTable::Objects objects;
        for (int left = m_bytes.below(4); left > 0; --left)
            objects.insert(QDBusObjectPath(path()), interfaces());
        return objects;
    }

private:
    QString text()
    {
        const auto size = static_cast<std::size_t>(m_bytes.byte());
        return QString::fromStdString(m_bytes.text(size));
    }

    QVariant value()
    {
        switch (m_bytes.below(8)) {
        case 0:
            return text();
        case 1:
            return static_cast<uint>(m_bytes.number(4));
        case 2:
            return m_bytes.below(2) == 1;
        case 3:
            return QVariant::fromValue(QDBusObjectPath(path()));
        case 4: {
            QList<QDBusObjectPath> paths;
            for (int left = m_bytes.below(5); left > 0; --left)
                paths.append(QDBusObjectPath(path()));
            return QVariant::fromValue(paths);
        }
        case 5: {
            QList<NamedPort> ports;
            for (int left = m_bytes.below(5); left > 0; --left)
                ports.append({text(), static_cast<uint>(m_bytes.below(4))});
            return QVariant::fromValue(ports);
        }
        case 6:
            return QVariantMap{{QStringLiteral("apn"), text()}};
        default:
            return {};
        }
    }

    fuzz::ByteReader &m_bytes;
};

bool isShortPlainText(const QString &text)
{
    return text.size() <= 100 && std::none_of(text.begin(), text.end(), [](QChar each) {
               return each.category() == QChar::Other_Control;
           });
}

void checkPort(const QString &name, const DataPort &port)
{
    fuzz::require(port.interfaceName == name, "a port is found by its name");
    fuzz::require(!name.isEmpty() && name.toUtf8().size() <= 15 && !name.contains('/'),
                  "the kernel could have an interface of that name");
    const Subscriber &owner = port.subscriber;
    for (const QString &text : {owner.apn, owner.operatorName, owner.technology})
        fuzz::require(isShortPlainText(text), "texts are short and plain");
    const QString &code = owner.operatorCode;
    fuzz::require(code.isEmpty() || code.size() == 5 || code.size() == 6,
                  "an operator's code has five or six digits");
    fuzz::require(owner.sim.size() <= 24, "a SIM's number is short");
}

void checkPorts(const ModemTable &table)
{
    for (const auto &[name, port] : table.ports())
        checkPort(name, port);
}

} // namespace

int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::ByteReader bytes(data, size);
    Daemon daemon(bytes);
    ModemTable table;
    std::deque<ModemTable::Question> open;
    const auto ask = [&open](const ModemTable::Questions &questions) {
        open.insert(open.end(), questions.begin(), questions.end());
    };
    const auto answer = [&](const QVariantMap &properties) {
        const ModemTable::Question question = open.front();
        open.pop_front();
        table.answer(question, properties);
    };
    while (!bytes.isAtEnd()) {
        const int what = bytes.below(5);
        if (what == 0)
            ask(table.setModems(daemon.objects()));
        else if (what == 1)
            ask(table.addInterfaces(daemon.path(), daemon.interfaces()));
        else if (what == 2)
            table.removeInterfaces(daemon.path(), {daemon.interfaceName()});
        else if (what == 3)
            ask(table.changeProperties(daemon.path(), daemon.interfaceName(), daemon.properties()));
        else if (!open.empty())
            answer(daemon.properties());
        checkPorts(table);
    }
    ask(table.setModems(daemon.objects()));
    while (!open.empty())
        answer({});
    fuzz::require(table.isComplete(), "everything is known once all questions are answered");
    checkPorts(table);
    return 0;
}
