// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <tuple>

namespace modem
{

/// Whether a modem uses the network of its SIM's own provider.
enum class Roaming { Unknown, Home, Roaming };

/// Who a connection belongs to. A text that is not known is empty.
struct Subscriber {
    QString apn; ///< of the bearer; empty while none is connected
    QString operatorName;
    QString operatorCode; ///< five or six digits: MCC and MNC
    QString sim;          ///< its number (ICCID), which belongs in no log
    QString technology;   ///< the newest in use: "5gnr", "lte", "umts" ...
    QString modem;        ///< maker and model, for people
    Roaming roaming = Roaming::Unknown;
};

/// Enough of a SIM's number to tell one's cards apart; the whole is nobody else's business.
inline QString shownPartOfSim(const QString &number)
{
    constexpr int shownDigits = 4;
    return number.right(shownDigits);
}

inline bool operator==(const Subscriber &a, const Subscriber &b)
{
    const auto fields = [](const Subscriber &s) {
        return std::tie(s.apn, s.operatorName, s.operatorCode, s.sim, s.technology, s.modem,
                        s.roaming);
    };
    return fields(a) == fields(b);
}

inline bool operator!=(const Subscriber &a, const Subscriber &b)
{
    return !(a == b);
}

/// A network interface that carries the data of a modem, or could do so.
struct DataPort {
    QString interfaceName;
    bool isConnected = false; ///< a bearer uses it
    Subscriber subscriber;
};

inline bool operator==(const DataPort &a, const DataPort &b)
{
    return a.interfaceName == b.interfaceName && a.isConnected == b.isConnected &&
           a.subscriber == b.subscriber;
}

inline bool operator!=(const DataPort &a, const DataPort &b)
{
    return !(a == b);
}

} // namespace modem
