// SPDX-License-Identifier: MIT
#pragma once

#include "HourlySplit.h"
#include "LinkTable.h"
#include "history/Store.h"
#include "modem/DataPort.h"

#include <cstdint>
#include <optional>
#include <string>

namespace recorder
{

/// One moment on both clocks.
struct Moment {
    std::int64_t utcSeconds = 0;
    std::int64_t bootMilliseconds = 0;
};

/// The nearest time that the store takes; a clock may have been set beyond it.
std::int64_t storableSeconds(std::int64_t seconds);

/// A connection while it lasts: what its link's counters and the clocks make of it.
class LiveConnection
{
public:
    /// All that it consists of, for another process to resume.
    struct State {
        history::OpenConnection row;
        std::string connectionMark; ///< of the link, at present
        bool hasOwnProfile = false;
        LinkCounters countersAtFirst;
        LinkCounters totalsAtFirst;
        Moment moment;
        bool hasEnded = false;
    };

    /// One that begins now on a link whose counters showed `base` before.
    LiveConnection(std::int64_t id, const std::string &bootId, const std::string &profile,
                   const Link &link, const LinkCounters &base, const Moment &now,
                   const modem::Subscriber &owner = {});
    /// One that another process has left; its id is 0.
    explicit LiveConnection(const State &state);
    State state() const;

    /// Tells it from all others of this process.
    std::int64_t id() const { return m_id; }
    int linkIndex() const { return static_cast<int>(m_row.interfaceIndex); }
    const history::OpenConnection &row() const { return m_row; }

    /// It is in the store under this row's key now; if an earlier process has begun
    /// it, it resumes that one's start, totals and, unless one was set here,
    /// profile. Whether the store's row lacks something that has happened since.
    bool adopt(const history::OpenConnection &stored);
    /// Leaves out what the link's counters showed up to these values, because it is
    /// in another record, unless they had begun anew before this one began.
    void leaveOut(const LinkCounters &counted);

    /// What of the row the store lacks, once it is there.
    history::OpenConnection unsavedRow() const;
    /// The row is in the store as it is now.
    void markSaved() { m_saved = m_row; }
    /// Whether the row says more than the store, but for the time that has passed.
    bool isUnsaved() const;

    void setProfile(const std::string &profile);
    /// Whose it is, as far as that is known. Bytes count as roaming, or not, from now on.
    void setOwner(const modem::Subscriber &owner);
    bool isRoaming() const { return m_isRoaming; }
    /// Takes over the link's name and connection mark.
    void setLink(const Link &link);

    /// Takes the link's counters as they are now. One that has gone backwards has
    /// been reset: what it shows is a new base then, what had been counted stays,
    /// and the connection is marked.
    void advance(const LinkCounters &counters, const Moment &now);

    /// It has ended, at the first of these moments; its final counters may still
    /// be on their way.
    void end(const Moment &now);
    bool hasEnded() const { return m_end.has_value(); }
    /// The finished connection; one without its final counters is "recovered".
    history::Connection finished(bool hasFinalCounters) const;

    /// Bytes per second since the last call, or since the beginning.
    LinkCounters takeRate(const Moment &now);

    // What the recorder still owes its listeners and the store.
    bool isStateDue = false;
    bool isCheckpointDue = false;

private:
    void updateTimes(const Moment &now);
    void splitByHour();
    void advanceTotals(const LinkCounters &counters);
    void leaveOutUploaded(std::int64_t bytes);
    void leaveOutDownloaded(std::int64_t bytes);

    const std::int64_t m_id;
    /// Until it is in the store, with the mark that the link had in the beginning:
    /// an earlier process's row has that one.
    history::OpenConnection m_row;
    std::optional<history::OpenConnection> m_saved; ///< the row as the store has it
    std::string m_connectionMark;                   ///< of the link, at present
    bool m_hasOwnProfile = false;
    bool m_isRoaming = false;
    HourlySplit m_hours; ///< of the row
    const LinkCounters m_countersAtFirst;
    LinkCounters m_totalsAtFirst;
    LinkCounters m_counters;
    Moment m_moment; ///< of those
    LinkCounters m_rateTotals;
    std::int64_t m_rateMilliseconds = 0;
    std::optional<Moment> m_end;
};

/// Whether two rows of the same link are of one connection: its mark may change while it
/// lasts.
bool areSameConnection(const history::OpenConnection &a, const history::OpenConnection &b);

/// A connection that an earlier process had left open, as it was last known.
history::Connection recovered(const history::OpenConnection &row);

/// What its link's counters showed then.
LinkCounters countersAtLastUpdate(const history::OpenConnection &row);

} // namespace recorder
