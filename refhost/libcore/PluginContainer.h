// SPDX-License-Identifier: MIT
#pragma once

#include "HostApi.h"
#include "IPluginContainer.h"

#include <QPointer>

#include <optional>
#include <vector>

namespace refhost
{

/// The loaded plug-ins by class identifier. The container holds no ownership: a
/// plug-in that is destroyed is no longer found.
class HOST_API PluginContainer final : public IPluginContainer
{
public:
    /// Makes the root object known under its class identifier, compared exactly;
    /// it takes the place of an earlier one under the same identifier and type
    /// code. Without a type code, it answers to every one.
    void add(const QString &classId, QObject *plugin, std::optional<int> type = {});

    // The host's own reserved operations: nobody calls them.
    void Reserved1() override {}
    void Reserved2() override {}
    void Reserved3() override {}
    void Reserved4() override {}
    void Reserved5() override {}
    void Reserved6() override {}
    void Reserved7() override {}
    void Reserved8() override {}
    void Reserved9() override {}
    QObject *GetPlugin(const QString &classId, int type) override;

private:
    struct Entry {
        QString classId;
        std::optional<int> type;
        QPointer<QObject> plugin;
    };

    std::vector<Entry> m_entries;
};

} // namespace refhost
