// SPDX-License-Identifier: MIT
#include "ConnectionWriter.h"
#include "JsonFormat.h"
#include "JsonLine.h"
#include "JsonObject.h"

#include <utility>

namespace formats
{

namespace
{

class JsonWriter : public ConnectionWriter
{
public:
    void begin(std::string &text) override { text += '['; }
    void add(const history::Connection &connection, std::string &text) override
    {
        addObject({connection, &connection, nullptr, nullptr}, text);
    }
    void addRunning(const history::OpenConnection &connection, std::string &text) override
    {
        addObject({connection, nullptr, &connection, nullptr}, text);
    }
    void end(std::string &text) override { text += m_isEmpty ? "]\n" : "\n]\n"; }

private:
    void addObject(const Exported &exported, std::string &text)
    {
        text += m_isEmpty ? "\n    {" : ",\n    {";
        m_isEmpty = false;
        m_objects.add(exported, text);
        text += "\n    }";
    }

    const JsonObject m_objects{JsonObject::Layout::Indented};
    bool m_isEmpty = true;
};

class JsonLinesWriter : public ConnectionWriter
{
public:
    explicit JsonLinesWriter(ExportOptions options)
        : m_options(std::move(options))
    {
    }

    void begin(std::string & /*text*/) override {}
    void add(const history::Connection &connection, std::string &text) override
    {
        addLine({connection, &connection, nullptr, &m_options.machine}, text);
    }
    void addRunning(const history::OpenConnection &connection, std::string &text) override
    {
        m_running.push_back(connection.key);
        addLine({connection, nullptr, &connection, &m_options.machine}, text);
    }
    void end(std::string &text) override
    {
        if (m_options.delivery)
            text += lineOf(closing(*m_options.delivery)) + '\n';
    }

private:
    void addLine(const Exported &exported, std::string &text)
    {
        text += '{';
        m_objects.add(exported, text);
        text += "}\n";
        ++m_lines;
    }
    Json closing(const Delivery &delivery) const
    {
        Json removed = Json::array();
        for (const history::KeyRange &range : delivery.keys.removed)
            removed.push_back({range.first, range.last});
        return {{jsonMachineName, m_options.machine},  {"after", delivery.afterKey},
                {jsonLastKeyName, delivery.keys.last}, {"connections", m_lines},
                {jsonRunningName, m_running},          {"removed", removed},
                {"delivered", delivery.time}};
    }

    const ExportOptions m_options;
    const JsonObject m_objects{JsonObject::Layout::Compact};
    std::size_t m_lines = 0;
    std::vector<std::int64_t> m_running;
};

} // namespace

std::unique_ptr<ConnectionWriter> jsonWriter(const ExportOptions & /*options*/)
{
    return std::make_unique<JsonWriter>();
}

std::unique_ptr<ConnectionWriter> jsonLinesWriter(const ExportOptions &options)
{
    return std::make_unique<JsonLinesWriter>(options);
}

} // namespace formats
