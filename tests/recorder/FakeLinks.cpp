// SPDX-License-Identifier: MIT
#include "FakeLinks.h"

using recorder::AddressReport;
using recorder::LinkCounters;
using recorder::LinkNews;
using recorder::LinkReport;

LinkReport runningLink(int index, const std::string &name, std::int64_t uploaded,
                       std::int64_t downloaded)
{
    LinkReport report;
    report.index = index;
    report.name = name;
    report.isUp = true;
    report.isRunning = true;
    report.isPpp = name.rfind("ppp", 0) == 0;
    report.counters = LinkCounters{uploaded, downloaded};
    return report;
}

LinkReport downLink(int index, const std::string &name, std::int64_t uploaded,
                    std::int64_t downloaded)
{
    LinkReport report = runningLink(index, name, uploaded, downloaded);
    report.isUp = false;
    report.isRunning = false;
    return report;
}

LinkReport goneLink(int index, const std::string &name, std::int64_t uploaded,
                    std::int64_t downloaded)
{
    LinkReport report = downLink(index, name, uploaded, downloaded);
    report.isGone = true;
    return report;
}

AddressReport addressOn(int index)
{
    return {index, "an address", true, false, 100};
}

AddressReport addressGoneFrom(int index)
{
    return {index, "an address", false, false, 0};
}

bool FakeLinks::start()
{
    if (!isBlind)
        dumpAnew(atStart);
    return !isBlind;
}

void FakeLinks::tell(const LinkNews &news)
{
    const auto change =
        std::visit([this](const auto &report) { return m_table.apply(report); }, news);
    if (change)
        emit linkChanged(*change);
}

void FakeLinks::deliverPending()
{
    for (const LinkNews &news : toCome)
        tell(news);
    toCome.clear();
}

void FakeLinks::dumpAnew(const std::vector<LinkNews> &news)
{
    m_table.beginDump();
    for (const LinkNews &each : news)
        tell(each);
    for (const recorder::LinkChange &change : m_table.endDump())
        emit linkChanged(change);
}
