// SPDX-License-Identifier: MIT
#include "LiveConnection.h"

#include "history/ConnectionFields.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace recorder
{

namespace
{

constexpr const char *endedNormally = "normal";
constexpr const char *endedByRecovery = "recovered";
constexpr const char *endedAfterReset = "counter reset";

constexpr std::int64_t maximumCount = std::numeric_limits<std::int64_t>::max();

/// Sums that a damaged file would take beyond 64 bits end there.
std::int64_t sumOf(std::int64_t a, std::int64_t b)
{
    std::int64_t sum = 0;
    if (!__builtin_add_overflow(a, b, &sum))
        return sum;
    return a > 0 ? maximumCount : -maximumCount;
}

/// A row as a recorder writes it; what a damaged file has in its place comes into
/// the range that the store takes, so that it ends as a record.
history::OpenConnection withinRange(history::OpenConnection row)
{
    for (std::int64_t *const seconds : {&row.startUtc, &row.updatedUtc})
        *seconds = storableSeconds(*seconds);
    row.connectedSeconds =
        std::clamp(row.connectedSeconds, std::int64_t{0}, history::largestDuration);
    for (std::int64_t *const count : {&row.uploadedBytes, &row.downloadedBytes})
        *count = std::clamp(*count, std::int64_t{0}, maximumCount);
    for (std::int64_t *const base : {&row.baseUploaded, &row.baseDownloaded})
        *base = std::clamp(*base, -maximumCount, maximumCount);
    return row;
}

/// Brings a total up to date; false if the counter has gone backwards.
bool advanceTotal(std::int64_t counter, std::int64_t &base, std::int64_t &total)
{
    std::int64_t moved = 0;
    if (!__builtin_sub_overflow(counter, base, &moved) && moved >= total) {
        total = moved;
        return true;
    }
    base = counter - total;
    return false;
}

/// How much of what a connection counted at first the counter had shown up to `counted`.
std::int64_t excess(std::int64_t counted, std::int64_t counterAtFirst, std::int64_t totalAtFirst)
{
    return std::clamp(sumOf(counted, totalAtFirst - counterAtFirst), std::int64_t{0}, totalAtFirst);
}

/// Lets a total grow without regard to how the counter came to its value.
void growTotal(std::int64_t growth, std::int64_t counter, std::int64_t &base, std::int64_t &total)
{
    total = sumOf(total, growth);
    base = counter - total;
}

std::int64_t perSecond(std::int64_t bytes, std::int64_t milliseconds)
{
    std::int64_t product = 0;
    if (milliseconds <= 0 || __builtin_mul_overflow(bytes, 1000, &product))
        return 0;
    return product / milliseconds;
}

history::Connection finishedFrom(const history::OpenConnection &row, const std::string &ending)
{
    history::Connection connection;
    static_cast<history::ConnectionBase &>(connection) = row;
    connection.key = 0;
    connection.endUtc = row.updatedUtc;
    connection.ending = ending;
    return connection;
}

/// Takes over what is known and fits into the store.
void learn(std::string &known, const QString &text, std::size_t mostBytes)
{
    const std::string bytes = text.toStdString();
    if (!bytes.empty() && bytes.size() <= mostBytes)
        known = bytes;
}

/// What a connection has learned of its owner counts more than what its row had before;
/// but roaming is what it was at the start.
void keepOwner(history::OpenConnection &row, const history::OpenConnection &own)
{
    history::forEachField(history::detailFields, [&](const auto &field) {
        using Kind = history::KindOf<decltype(field)>;
        const std::string &known = own.*field.member;
        std::string &text = row.*field.member;
        if (std::is_same_v<Kind, history::kind::Roaming> ? text.empty() : !known.empty())
            text = known;
    });
}

} // namespace

std::int64_t storableSeconds(std::int64_t seconds)
{
    return std::clamp(seconds, std::int64_t{0}, history::largestTime);
}

LiveConnection::LiveConnection(std::int64_t id, const std::string &bootId,
                               const std::string &profile, const Link &link,
                               const LinkCounters &base, const Moment &now,
                               const modem::Subscriber &owner)
    : m_id(id)
    , m_connectionMark(link.connectionMark())
    , m_countersAtFirst(link.counters)
    , m_rateMilliseconds(now.bootMilliseconds)
{
    m_row.bootId = bootId;
    m_row.interfaceIndex = link.index;
    m_row.interfaceName = link.name;
    m_row.linkMark = m_connectionMark;
    m_row.profile = profile;
    m_row.startUtc = storableSeconds(now.utcSeconds);
    m_row.startBootMilliseconds = now.bootMilliseconds;
    // Some interfaces start to count anew when they are switched on, which is no
    // reset in the middle of a connection.
    m_row.baseUploaded = std::min(base.uploaded, link.counters.uploaded);
    m_row.baseDownloaded = std::min(base.downloaded, link.counters.downloaded);
    m_row.ending = endedNormally;
    setOwner(owner);
    advance(link.counters, now);
    m_totalsAtFirst = {m_row.uploadedBytes, m_row.downloadedBytes};
}

LiveConnection::LiveConnection(const State &state)
    : m_id(0)
    , m_row(withinRange(state.row))
    , m_connectionMark(state.connectionMark)
    , m_hasOwnProfile(state.hasOwnProfile)
    , m_isRoaming(state.row.roaming == history::abroad)
    , m_hours(m_row)
    , m_countersAtFirst(state.countersAtFirst)
    , m_totalsAtFirst(state.totalsAtFirst)
    , m_counters(countersAtLastUpdate(state.row))
    , m_moment(state.moment)
    , m_end(state.hasEnded ? std::make_optional(state.moment) : std::nullopt)
{
    m_row.hours = m_hours.hours();
}

LiveConnection::State LiveConnection::state() const
{
    return {m_row,           m_connectionMark, m_hasOwnProfile, m_countersAtFirst,
            m_totalsAtFirst, m_moment,         hasEnded()};
}

bool LiveConnection::adopt(const history::OpenConnection &stored)
{
    if (stored.startBootMilliseconds == m_row.startBootMilliseconds) {
        m_row.key = stored.key;
        m_row.linkMark = m_connectionMark;
        return stored.linkMark != m_connectionMark;
    }
    const history::OpenConnection own = std::exchange(m_row, withinRange(stored));
    m_row.interfaceName = own.interfaceName;
    m_row.linkMark = m_connectionMark;
    if (m_hasOwnProfile)
        m_row.profile = own.profile;
    keepOwner(m_row, own);
    m_hours = HourlySplit(m_row);
    m_hours.add(own.hours);
    // From the earlier process to this one's first look, and from there to now: the
    // counters may have been reset in both times.
    advanceTotals(m_countersAtFirst);
    growTotal(own.uploadedBytes - m_totalsAtFirst.uploaded, m_counters.uploaded, m_row.baseUploaded,
              m_row.uploadedBytes);
    growTotal(own.downloadedBytes - m_totalsAtFirst.downloaded, m_counters.downloaded,
              m_row.baseDownloaded, m_row.downloadedBytes);
    if (own.ending == endedAfterReset)
        m_row.ending = own.ending;
    m_rateTotals.uploaded += m_row.uploadedBytes - own.uploadedBytes;
    m_rateTotals.downloaded += m_row.downloadedBytes - own.downloadedBytes;
    updateTimes(m_moment);
    splitByHour();
    return true;
}

void LiveConnection::leaveOut(const LinkCounters &counted)
{
    if (counted.uploaded > m_countersAtFirst.uploaded ||
        counted.downloaded > m_countersAtFirst.downloaded)
        return;
    leaveOutUploaded(
        excess(counted.uploaded, m_countersAtFirst.uploaded, m_totalsAtFirst.uploaded));
    leaveOutDownloaded(
        excess(counted.downloaded, m_countersAtFirst.downloaded, m_totalsAtFirst.downloaded));
    splitByHour();
}

void LiveConnection::leaveOutUploaded(std::int64_t bytes)
{
    m_row.baseUploaded += bytes;
    m_row.uploadedBytes -= bytes;
    m_totalsAtFirst.uploaded -= bytes;
    m_rateTotals.uploaded -= bytes;
}

void LiveConnection::leaveOutDownloaded(std::int64_t bytes)
{
    m_row.baseDownloaded += bytes;
    m_row.downloadedBytes -= bytes;
    m_totalsAtFirst.downloaded -= bytes;
    m_rateTotals.downloaded -= bytes;
}

history::OpenConnection LiveConnection::unsavedRow() const
{
    history::OpenConnection row = m_row;
    if (m_saved)
        row.hours = m_hours.changedSince(m_saved->hours);
    return row;
}

void LiveConnection::setOwner(const modem::Subscriber &owner)
{
    learn(m_row.operatorName, owner.operatorName, history::longestOperator);
    learn(m_row.operatorCode, owner.operatorCode, history::longestShortText);
    learn(m_row.sim, owner.sim, history::longestShortText);
    learn(m_row.technology, owner.technology, history::longestShortText);
    if (owner.roaming == modem::Roaming::Unknown)
        return;
    m_isRoaming = owner.roaming == modem::Roaming::Roaming;
    if (m_row.roaming.empty())
        m_row.roaming = m_isRoaming ? history::abroad : history::atHome;
}

bool LiveConnection::isUnsaved() const
{
    using history::openContentFields;
    return !m_saved || m_saved->key != m_row.key ||
           valuesOf(*m_saved, openContentFields) != valuesOf(m_row, openContentFields);
}

void LiveConnection::setProfile(const std::string &profile)
{
    m_row.profile = profile;
    m_hasOwnProfile = true;
}

void LiveConnection::advance(const LinkCounters &counters, const Moment &now)
{
    m_counters = counters;
    advanceTotals(counters);
    updateTimes(now);
    splitByHour();
}

void LiveConnection::splitByHour()
{
    m_hours.follow({m_row.uploadedBytes, m_row.downloadedBytes},
                   storableSeconds(m_moment.utcSeconds), m_isRoaming);
    m_row.hours = m_hours.hours();
}

void LiveConnection::advanceTotals(const LinkCounters &counters)
{
    const bool hasGoneUp = advanceTotal(counters.uploaded, m_row.baseUploaded, m_row.uploadedBytes);
    const bool hasGoneDown =
        advanceTotal(counters.downloaded, m_row.baseDownloaded, m_row.downloadedBytes);
    if (!hasGoneUp || !hasGoneDown)
        m_row.ending = endedAfterReset;
}

void LiveConnection::setLink(const Link &link)
{
    m_row.interfaceName = link.name;
    const std::string mark = link.connectionMark();
    if (hasEnded() || !link.isConnected() || mark == m_connectionMark)
        return;
    m_connectionMark = mark;
    // An old mark in the store would make another connection of this one.
    if (m_row.key != 0)
        m_row.linkMark = mark;
    isCheckpointDue = true;
}

void LiveConnection::end(const Moment &now)
{
    updateTimes(now);
    m_end = m_moment;
}

history::Connection LiveConnection::finished(bool hasFinalCounters) const
{
    return finishedFrom(m_row, hasFinalCounters ? m_row.ending : endedByRecovery);
}

LinkCounters LiveConnection::takeRate(const Moment &now)
{
    const std::int64_t milliseconds = now.bootMilliseconds - m_rateMilliseconds;
    const LinkCounters rate = {
        perSecond(m_row.uploadedBytes - m_rateTotals.uploaded, milliseconds),
        perSecond(m_row.downloadedBytes - m_rateTotals.downloaded, milliseconds)};
    m_rateTotals = {m_row.uploadedBytes, m_row.downloadedBytes};
    m_rateMilliseconds = now.bootMilliseconds;
    return rate;
}

/// A wall clock that has been set back behind the start says nothing about the
/// end; the start and the time connected do.
void LiveConnection::updateTimes(const Moment &now)
{
    m_moment = m_end.value_or(now);
    // The start of a resumed row is what the store knows it by, so it stays as it
    // is even out of range.
    const std::int64_t start =
        std::clamp(m_row.startBootMilliseconds, std::int64_t{0}, m_moment.bootMilliseconds);
    m_row.connectedSeconds =
        std::min((m_moment.bootMilliseconds - start) / 1000, history::largestDuration);
    m_row.updatedUtc = storableSeconds(m_moment.utcSeconds < m_row.startUtc
                                           ? m_row.startUtc + m_row.connectedSeconds
                                           : m_moment.utcSeconds);
}

bool areSameConnection(const history::OpenConnection &a, const history::OpenConnection &b)
{
    return a.linkMark == b.linkMark || a.startBootMilliseconds == b.startBootMilliseconds;
}

history::Connection recovered(const history::OpenConnection &row)
{
    return finishedFrom(withinRange(row), endedByRecovery);
}

LinkCounters countersAtLastUpdate(const history::OpenConnection &row)
{
    const history::OpenConnection sound = withinRange(row);
    return {sumOf(sound.baseUploaded, sound.uploadedBytes),
            sumOf(sound.baseDownloaded, sound.downloadedBytes)};
}

} // namespace recorder
