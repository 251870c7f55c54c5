// SPDX-License-Identifier: MIT
#include "Unwritten.h"

#include "history/ConnectionFields.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace recorder
{

namespace
{

const QByteArray signature = QByteArrayLiteral("refdialer-unwritten 1 ");

/// The fields of the file, each once, for writing and for reading.
template <typename State, typename Visitor>
void visitFields(State &state, Visitor &visitor)
{
    auto &row = state.row;
    visitor.text("boot_id", row.bootId);
    visitor.text("interface_name", row.interfaceName);
    visitor.text("first_link_mark", row.linkMark);
    visitor.text("link_mark", state.connectionMark);
    visitor.text("profile", row.profile);
    visitor.text("ending", row.ending);
    visitor.number("key", row.key);
    visitor.number("interface_index", row.interfaceIndex);
    visitor.number("start_utc", row.startUtc);
    visitor.number("start_boot_ms", row.startBootMilliseconds);
    visitor.number("base_uploaded", row.baseUploaded);
    visitor.number("base_downloaded", row.baseDownloaded);
    visitor.number("uploaded_bytes", row.uploadedBytes);
    visitor.number("downloaded_bytes", row.downloadedBytes);
    visitor.number("updated_utc", row.updatedUtc);
    visitor.number("connected_seconds", row.connectedSeconds);
    visitor.number("first_uploaded", state.countersAtFirst.uploaded);
    visitor.number("first_downloaded", state.countersAtFirst.downloaded);
    visitor.number("first_uploaded_total", state.totalsAtFirst.uploaded);
    visitor.number("first_downloaded_total", state.totalsAtFirst.downloaded);
    visitor.number("moment_utc", state.moment.utcSeconds);
    visitor.number("moment_boot_ms", state.moment.bootMilliseconds);
    history::forEachField(history::detailFields, [&](const auto &field) {
        visitor.newText(field.name, row.*field.member);
    });
    visitor.newHours("hours", row.hours);
    visitor.flag("has_own_profile", state.hasOwnProfile);
    visitor.flag("has_ended", state.hasEnded);
}

/// Numbers as texts: 64 bits of them are more than JSON's numbers promise.
class Writer
{
public:
    void text(const char *name, const std::string &value)
    {
        object[QLatin1String(name)] = QString::fromStdString(value);
    }
    void newText(const char *name, const std::string &value) { text(name, value); }
    void newHours(const char *name, const std::vector<history::HourlyBytes> &hours)
    {
        QJsonArray array;
        for (const history::HourlyBytes &hour : hours)
            array.append(QJsonArray{QString::number(hour.hourUtc), hour.isRoaming,
                                    QString::number(hour.uploadedBytes),
                                    QString::number(hour.downloadedBytes)});
        object[QLatin1String(name)] = array;
    }
    void number(const char *name, std::int64_t value)
    {
        object[QLatin1String(name)] = QString::number(value);
    }
    void flag(const char *name, bool value) { object[QLatin1String(name)] = value; }

    QJsonObject object;
};

class Reader
{
public:
    explicit Reader(const QJsonObject &object)
        : m_object(object)
    {
    }

    void text(const char *name, std::string &value)
    {
        isComplete &= field(name).isString();
        value = field(name).toString().toStdString();
    }
    // What files of earlier versions do not have.
    void newText(const char *name, std::string &value)
    {
        value = field(name).toString().toStdString();
    }
    void newHours(const char *name, std::vector<history::HourlyBytes> &hours)
    {
        const QJsonArray array = field(name).toArray();
        for (const auto &each : array) {
            const QJsonArray hour = each.toArray();
            hours.push_back({hour.at(0).toString().toLongLong(), hour.at(1).toBool(),
                             hour.at(2).toString().toLongLong(),
                             hour.at(3).toString().toLongLong()});
        }
    }
    void number(const char *name, std::int64_t &value)
    {
        bool isNumber = false;
        value = field(name).toString().toLongLong(&isNumber);
        isComplete &= isNumber;
    }
    void flag(const char *name, bool &value)
    {
        isComplete &= field(name).isBool();
        value = field(name).toBool();
    }

    bool isComplete = true;

private:
    QJsonValue field(const char *name) const { return m_object.value(QLatin1String(name)); }

    const QJsonObject m_object;
};

QJsonObject objectOf(const Unwritten &unwritten)
{
    Writer writer;
    const LiveConnection::State state = unwritten.connection.state();
    visitFields(state, writer);
    writer.text("run", unwritten.run);
    writer.text("origin", unwritten.origin);
    writer.flag("has_final_counters", unwritten.hasFinalCounters);
    return writer.object;
}

std::optional<Unwritten> connectionIn(const QJsonObject &object)
{
    Reader reader(object);
    LiveConnection::State state;
    visitFields(state, reader);
    std::string run;
    std::string origin;
    bool hasFinalCounters = false;
    reader.text("run", run);
    reader.text("origin", origin);
    reader.flag("has_final_counters", hasFinalCounters);
    if (!reader.isComplete || origin.empty())
        return std::nullopt;
    return Unwritten{LiveConnection(state), hasFinalCounters, run, origin};
}

QByteArray digestOf(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex() + '\n';
}

} // namespace

QByteArray textOf(const std::vector<Unwritten> &connections)
{
    QJsonArray array;
    for (const Unwritten &each : connections)
        array.append(objectOf(each));
    const QByteArray body = QJsonDocument(array).toJson();
    return signature + digestOf(body) + body;
}

std::optional<std::vector<Unwritten>> unwrittenIn(const QByteArray &text)
{
    const auto headSize = signature.size() + digestOf({}).size();
    const QByteArray body = text.mid(headSize);
    if (text.left(headSize) != signature + digestOf(body))
        return std::nullopt;
    std::vector<Unwritten> connections;
    const QJsonArray entries = QJsonDocument::fromJson(body).array();
    for (const auto &each : entries) {
        const auto connection = connectionIn(each.toObject());
        if (!connection)
            return std::nullopt;
        connections.push_back(*connection);
    }
    return connections;
}

} // namespace recorder
