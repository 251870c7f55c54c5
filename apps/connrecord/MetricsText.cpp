// SPDX-License-Identifier: MIT
#include "MetricsText.h"

#include "formats/Utf8Text.h"
#include "usage/SaturatingMath.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace connrecord
{

namespace
{

using history::ConnectionSum;
using usage::PlanState;
using usage::StandingPlan;

/// Metrics that have their name in common.
struct Family {
    const char *name; ///< ends with the unit, if there is one
    const char *help;
    const char *unit;
    bool isCounter;
};

using Labels = std::vector<std::pair<const char *, std::string>>;

std::string escaped(const std::string &value)
{
    std::string text;
    for (const char character : formats::cleanedUtf8(value)) {
        if (character == '\n') {
            text += "\\n";
            continue;
        }
        if (character == '\\' || character == '"')
            text += '\\';
        text += character;
    }
    return text;
}

std::string textOf(const Labels &labels)
{
    std::string text;
    for (const auto &[name, value] : labels)
        text += (text.empty() ? "{" : ",") + std::string(name) + "=\"" + escaped(value) + '"';
    return text.empty() ? text : text + '}';
}

/// The text while it grows, family by family.
class MetricsWriter
{
public:
    explicit MetricsWriter(const MetricsFormat &format)
        : m_isOpenMetrics(format.isOpenMetrics)
    {
    }

    void begin(const Family &family);
    void add(const Labels &labels, std::int64_t value)
    {
        m_text += m_sample + textOf(labels) + ' ' + std::to_string(value) + '\n';
    }
    QByteArray finished()
    {
        return QByteArray::fromStdString(m_text + (m_isOpenMetrics ? "# EOF\n" : ""));
    }

private:
    const bool m_isOpenMetrics;
    std::string m_text;
    std::string m_sample; ///< the name of the present family's samples
};

/// In OpenMetrics the suffix belongs to a counter's samples, else to its name too.
void MetricsWriter::begin(const Family &family)
{
    m_sample = std::string(family.name) + (family.isCounter ? "_total" : "");
    const std::string name = (m_isOpenMetrics ? family.name : m_sample) + ' ';
    m_text += "# HELP " + name + family.help + '\n';
    m_text += "# TYPE " + name + (family.isCounter ? "counter" : "gauge") + '\n';
    if (m_isOpenMetrics && *family.unit != '\0')
        m_text += "# UNIT " + name + family.unit + '\n';
}

/// What a family takes from a sum.
struct SumFamily {
    Family family;
    std::int64_t ConnectionSum::*value;
};

constexpr std::array<SumFamily, 4> sumFamilies = {{
    {{"connrecord_sent_bytes", "Bytes sent.", "bytes", true}, &ConnectionSum::uploadedBytes},
    {{"connrecord_received_bytes", "Bytes received.", "bytes", true},
     &ConnectionSum::downloadedBytes},
    {{"connrecord_connections", "Connections that have begun.", "", true},
     &ConnectionSum::connections},
    {{"connrecord_connected_seconds", "Time connected.", "seconds", true},
     &ConnectionSum::connectedSeconds},
}};

constexpr Family usedFamily = {"connrecord_plan_used_bytes",
                               "Bytes of a data plan used in its present period.", "bytes", false};
constexpr Family leftFamily = {
    "connrecord_plan_left_bytes",
    "Bytes left of a data plan in its present period; none if its amount is not limited.", "bytes",
    false};
constexpr Family thresholdFamily = {
    "connrecord_plan_threshold_reached",
    "Whether a data plan has reached this percentage to warn at in its present period.", "", false};
constexpr Family stateFamily = {"connrecord_plan_state",
                                "Whether this is how a data plan stands now.", "", false};
constexpr Family recordingFamily = {"connrecord_recording",
                                    "Whether a program records into this history.", "", false};

constexpr std::array<std::pair<const char *, PlanState>, 4> stateNames = {{
    {"no_period", PlanState::NoPeriod},
    {"within", PlanState::Within},
    {"warned", PlanState::Warned},
    {"spent", PlanState::Spent},
}};

/// With texts as they are shown, which may make one of two of them.
std::vector<ConnectionSum> shownSums(const std::vector<ConnectionSum> &sums)
{
    std::map<std::tuple<std::string, std::string, bool>, ConnectionSum> shown;
    for (ConnectionSum sum : sums) {
        sum.profile = formats::cleanedUtf8(sum.profile);
        sum.sim = formats::cleanedUtf8(sum.sim);
        const auto [place, isNew] = shown.try_emplace({sum.profile, sum.sim, sum.isRoaming}, sum);
        if (isNew)
            continue;
        for (const auto &[family, value] : sumFamilies)
            place->second.*value = usage::saturatingSum(place->second.*value, sum.*value);
    }
    std::vector<ConnectionSum> result;
    result.reserve(shown.size());
    for (const auto &[group, sum] : shown)
        result.push_back(sum);
    return result;
}

void addSums(MetricsWriter &writer, const std::vector<ConnectionSum> &sums)
{
    for (const auto &[family, value] : sumFamilies) {
        writer.begin(family);
        for (const ConnectionSum &sum : sums) {
            writer.add({{"profile", sum.profile},
                        {"sim", sum.sim},
                        {"roaming", sum.isRoaming ? history::abroad : history::atHome}},
                       sum.*value);
        }
    }
}

void addUse(MetricsWriter &writer, const std::vector<StandingPlan> &plans)
{
    writer.begin(usedFamily);
    for (const StandingPlan &standing : plans) {
        if (standing.status)
            writer.add({{"plan", standing.plan.name}}, standing.status->used);
    }
    writer.begin(leftFamily);
    for (const StandingPlan &standing : plans) {
        if (standing.status && standing.status->left)
            writer.add({{"plan", standing.plan.name}}, *standing.status->left);
    }
}

void addThresholds(MetricsWriter &writer, const std::vector<StandingPlan> &plans)
{
    writer.begin(thresholdFamily);
    for (const StandingPlan &standing : plans) {
        // Without an amount there is nothing to reach.
        if (!standing.status || !standing.plan.amount)
            continue;
        const std::vector<int> &reached = standing.status->warnings;
        for (const int percent : standing.plan.warnAtPercent) {
            const bool isReached =
                std::find(reached.begin(), reached.end(), percent) != reached.end();
            writer.add({{"plan", standing.plan.name}, {"percent", std::to_string(percent)}},
                       isReached ? 1 : 0);
        }
    }
}

void addStates(MetricsWriter &writer, const std::vector<StandingPlan> &plans)
{
    writer.begin(stateFamily);
    for (const StandingPlan &standing : plans) {
        for (const auto &[name, state] : stateNames)
            writer.add({{"plan", standing.plan.name}, {"state", name}},
                       stateOf(standing) == state ? 1 : 0);
    }
}

} // namespace

QByteArray toText(const Metrics &metrics, const MetricsFormat &format)
{
    MetricsWriter writer(format);
    addSums(writer, shownSums(metrics.sums));
    addUse(writer, metrics.plans);
    addThresholds(writer, metrics.plans);
    addStates(writer, metrics.plans);
    writer.begin(recordingFamily);
    writer.add({}, metrics.isRecording ? 1 : 0);
    return writer.finished();
}

} // namespace connrecord
