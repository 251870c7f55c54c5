// SPDX-License-Identifier: MIT
#pragma once

#include "recorder/LinkSource.h"

#include <vector>

/// A link of this index and name that is up and running, with these counters.
recorder::LinkReport runningLink(int index, const std::string &name, std::int64_t uploaded,
                                 std::int64_t downloaded);
recorder::LinkReport downLink(int index, const std::string &name, std::int64_t uploaded,
                              std::int64_t downloaded);
recorder::LinkReport goneLink(int index, const std::string &name, std::int64_t uploaded,
                              std::int64_t downloaded);
recorder::AddressReport addressOn(int index);
recorder::AddressReport addressGoneFrom(int index);

/// News about links that a test makes up.
class FakeLinks : public recorder::LinkSource
{
    Q_OBJECT

public:
    using LinkSource::LinkSource;

    bool start() override;
    std::vector<recorder::Link> links() const override { return m_table.links(); }
    void requestCounters(int linkIndex) override { requests.push_back(linkIndex); }
    /// Tells what was to come.
    void deliverPending() override;

    void tell(const recorder::LinkNews &news);
    /// All messages were lost; a new dump shows only these.
    void dumpAnew(const std::vector<recorder::LinkNews> &news);

    std::vector<recorder::LinkNews> atStart; ///< what the first dump shows
    bool isBlind = false;                    ///< there is no first dump
    std::vector<int> requests;
    std::vector<recorder::LinkNews> toCome;

private:
    recorder::LinkTable m_table;
};
