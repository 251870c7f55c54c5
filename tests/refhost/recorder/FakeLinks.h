// SPDX-License-Identifier: MIT
#pragma once

#include "LinkSource.h"

#include <vector>

/// A link of this index and name that is up and running, with these counters.
refhost::LinkReport runningLink(int index, const std::string &name, std::int64_t uploaded,
                                std::int64_t downloaded);
refhost::LinkReport downLink(int index, const std::string &name, std::int64_t uploaded,
                             std::int64_t downloaded);
refhost::LinkReport goneLink(int index, const std::string &name, std::int64_t uploaded,
                             std::int64_t downloaded);
refhost::AddressReport addressOn(int index);
refhost::AddressReport addressGoneFrom(int index);

/// News about links that a test makes up.
class FakeLinks : public refhost::LinkSource
{
    Q_OBJECT

public:
    using LinkSource::LinkSource;

    bool start() override;
    std::vector<refhost::Link> links() const override { return m_table.links(); }
    void requestCounters(int linkIndex) override { requests.push_back(linkIndex); }
    /// Tells what was to come.
    void catchUp() override;

    void tell(const refhost::LinkNews &news);
    /// All messages were lost; a new listing shows only these.
    void relist(const std::vector<refhost::LinkNews> &news);

    std::vector<refhost::LinkNews> atStart; ///< what the first listing shows
    bool isBlind = false;                   ///< there is no first listing
    std::vector<int> requests;
    std::vector<refhost::LinkNews> toCome;

private:
    refhost::LinkTable m_table;
};
