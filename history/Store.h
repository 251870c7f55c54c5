// SPDX-License-Identifier: MIT
#pragma once

#include "ConnectionSelection.h"
#include "ConnectionSource.h"
#include "DataPlan.h"
#include "Result.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace history
{

/// What a connection has moved in one hour, and whose it was.
struct ConnectionHour {
    std::int64_t key = 0;
    bool isOpen = false; ///< the key is that of an open connection
    std::string profile;
    std::string operatorName;
    std::string operatorCode;
    std::string sim;
    /// The hour's first second. A connection without hours is here once, at home, with all
    /// its bytes and the second of its start.
    std::int64_t utc = 0;
    bool isRoaming = false;
    std::int64_t uploadedBytes = 0;
    std::int64_t downloadedBytes = 0;
    bool isKnown = true; ///< the connection has hours
};

/// What the connections of a history, the ones that last included, are of.
struct Overview {
    std::optional<std::int64_t> firstUtc; ///< the start of the first one; none without any
    std::vector<std::string> profiles;    ///< each once, in the order of their bytes
    std::vector<std::string> sims;        ///< likewise; known ones only
    bool hasConnectionsWithoutSim = false;
};

/// What a look at every record of a history has shown.
struct Examination {
    std::vector<std::string> problems; ///< sentences; none if it is sound
    std::size_t connections = 0;
    std::size_t openConnections = 0;
};

/// The history of connections in one SQLite file. A store is used on one thread;
/// several processes may use the same file at once. No operation throws.
class Store
{
public:
    /// The user's own store: $NETINFO_STORE if set, else connections.db in the
    /// refdialer folder of $XDG_DATA_HOME (~/.local/share without it).
    static std::string defaultPath();

    /// Opens the store in `path` and creates it, mode 0600 in a folder of mode
    /// 0700, if it is not there. A file that is not a store, is damaged or newer
    /// is left as it is.
    static Result<Store> openOrCreate(const std::string &path);
    /// The same, and each change is on the disk before it is told to be done: not
    /// even a power cut takes it back. A locked store is waited for a moment only, to
    /// be tried again later, and said to be locked by the recorder when that has lasted.
    static Result<Store> openForRecording(const std::string &path);
    /// As openOrCreate, but a file that is not there is not made: until something else
    /// creates it, the store reads as empty.
    static Result<Store> openForReading(const std::string &path);
    /// The same for who reads again and again: a locked store is waited for a moment only.
    static Result<Store> openForWatching(const std::string &path);

    Store(Store &&) noexcept;
    Store &operator=(Store &&) noexcept;
    ~Store();

    /// The finished connections that start in `range`, by start time, then by key.
    Result<std::vector<Connection>> list(const TimeRange &range = {}) const;
    /// Shows those of the selection one after the other, as they all are at one moment,
    /// and returns how many those were: the finished ones by start time, then by key;
    /// behind them, to `openVisitor` if it is given, those that last, by key. What a
    /// visitor throws ends the visit and is passed on.
    Result<std::size_t> visit(const ConnectionSelection &selection,
                              const ConnectionVisitor &visitor,
                              const OpenConnectionVisitor &openVisitor = {}) const;
    /// How many connections are finished.
    Result<std::int64_t> count() const;

    /// A number that stays the same as long as the finished connections do, on which
    /// open ones have no part: the sum, modulo 2^64, of fingerprintOf() each of them.
    /// Costs next to nothing while nobody has written to the file.
    Result<std::uint64_t> fingerprint() const;
    /// Of the connection's values and its key; the same within one process only.
    static std::uint64_t fingerprintOf(const Connection &connection);

    /// The same number as before if nothing has been written to the file since, and a new one
    /// if something has, or if another file has taken its place; 0 without a file. Costs next
    /// to nothing.
    Result<std::uint64_t> revision() const;
    Result<Overview> overview() const;

    /// Stores one connection and returns its key.
    Result<std::int64_t> add(const Connection &connection);

    /// Told how many of the given connections have been looked at so far.
    using Progress = std::function<void(std::size_t done)>;
    /// Stores those of `connections` that are not in the store yet, all or none,
    /// and returns how many that were. Equal connections are told apart by their
    /// number: what is given three times is in the store three times afterwards,
    /// so giving the same list again adds nothing. Operator, SIM, roaming and technology
    /// tell none apart, and nothing is changed in what is there.
    Result<std::size_t> addMissing(const std::vector<Connection> &connections,
                                   const Progress &progress = {});
    /// The same of any number of them, which are held one at a time.
    Result<std::size_t> addMissing(ConnectionSource &connections, const Progress &progress = {});

    /// What merge() has changed.
    struct Merged {
        std::size_t added = 0;
        std::size_t completed = 0;
    };
    /// Takes over into `stored` what the given connection of that index knows more
    /// about the same one; whether that was anything.
    using Completion = std::function<bool(Connection &stored, std::size_t index)>;
    /// Stores connections that were read from a log, all or none. A log may have lost
    /// the beginning of a connection or not name its profile, so here those are the same
    /// whose end, connected time and both byte counts are, unless both know their
    /// interface and it is another one. As in addMissing(), their number counts.
    /// `complete` is asked for each that is there with other contents; it leaves the
    /// key, and what makes the two the same, as it is.
    Result<Merged> merge(const std::vector<Connection> &connections, const Completion &complete,
                         const Progress &progress = {});

    /// Removes the connections with these keys, all or none.
    Result<std::size_t> remove(const std::vector<std::int64_t> &keys);

    /// Stores a connection that has begun. A link has one open connection at
    /// most: if there is one already, of an earlier process or another one that
    /// records the same link, nothing is stored. Returns what the store holds
    /// then, with its key. It is in no list before it is finished.
    Result<OpenConnection> begin(const OpenConnection &connection);
    /// Brings an open connection up to date: its names, mark, base, totals, last update
    /// and ending; by its key, which is returned, link and start.
    /// Its hours are those that have changed; if what the store then has of them does not
    /// add up to the byte counts, that is a BadRecord and nothing is changed.
    /// With an `origin`, it keeps in the same transaction that this was taken over.
    Result<std::int64_t> checkpoint(const OpenConnection &connection,
                                    const std::string &origin = {});
    /// Turns the open connection, known as for checkpoint(), into the finished one that
    /// is given, both at once, and returns the finished one's key. If it is open no
    /// longer, another process may have finished it: then the connection is added
    /// unless one of the same interface and start is there, which gives 0.
    /// The open one's hours become the finished one's, whose own are those that have changed
    /// since. An `origin` is kept as for checkpoint().
    Result<std::int64_t> finish(const OpenConnection &open, const Connection &connection,
                                const std::string &origin = {});
    /// Whether a change of this origin has been made, so that it is not made twice.
    Result<bool> wasTakenOver(const std::string &origin) const;
    /// Forgets all origins, once there is nothing left to take over. Returns how many.
    Result<std::int64_t> forgetOrigins();
    /// The connections that have begun and not been finished, with their hours, by key.
    Result<std::vector<OpenConnection>> listOpen() const;

    /// Each of begin(), checkpoint() and finish() keeps what the connection's link showed
    /// at that update too. This keeps it of other links, forgets links of the same names
    /// that are not there any more, and adds the connections that nobody has watched,
    /// all or nothing; returns how many those were.
    Result<std::size_t> see(const std::vector<SeenLink> &links,
                            const std::vector<Connection> &unwatched = {});
    /// What is known of links by earlier calls.
    Result<std::vector<SeenLink>> listSeen() const;

    /// What has been moved in `range`, by time, of finished and of open connections.
    Result<std::vector<ConnectionHour>> hours(const TimeRange &range = {}) const;

    /// Told of one hour, which ends with the call; must not use this store.
    using HourVisitor = std::function<void(const ConnectionHour &hour)>;
    /// Shows `visitor` the same in no order, without keeping it: for who adds up many. Returns
    /// how many there are.
    Result<std::size_t> visitHours(const TimeRange &range, const HourVisitor &visitor) const;

    /// The data plans by their names. A row that another program has made and that is no
    /// plan is an error of the kind Damaged, and can be removed.
    Result<std::vector<DataPlan>> plans() const;
    /// Stores the plan as a new one if it has no key, else in the place of the one with its
    /// key, and returns its key. A name that another plan has is a BadRecord. With another
    /// amount, the warnings that were noted are forgotten.
    Result<std::int64_t> setPlan(const DataPlan &plan);
    /// The same in the place of `former`, the plan as it was read before, or of no plan if none
    /// had this name. Nothing changes if another program has changed or made it since then.
    /// Warnings at percentages that the plan has `reached` with the new amount too stay noted.
    Result<PlanOutcome> setPlan(const DataPlan &plan, const std::optional<DataPlan> &former,
                                const std::vector<int> &reached);
    /// Removes the plan of that name; whether there was one.
    Result<bool> removePlan(const std::string &name);
    /// Notes that these percentages of the plan with the key are being warned of, in its
    /// period that begins with that day. Returns those that were not noted before, of which
    /// the caller is to warn; of several callers it is one for each.
    Result<std::vector<int>> noteWarnings(std::int64_t planKey, JulianDay periodFirst,
                                          const std::vector<int> &percentages);
    /// Forgets that these were noted, for who could not warn of them; how many were.
    Result<std::size_t> forgetWarnings(std::int64_t planKey, JulianDay periodFirst,
                                       const std::vector<int> &percentages);
    /// The percentages that are noted, rising.
    Result<std::vector<int>> warningsGiven(std::int64_t planKey, JulianDay periodFirst) const;

    /// Writes a copy of the whole history, as it is at one moment, into the empty file
    /// `path`, whoever writes to the history meanwhile; false without a history. If the
    /// copy cannot be written, the error is of the kind WriteFailed.
    Result<bool> copyTo(const std::string &path) const;
    /// Looks at the whole file, each value included. A file that cannot be opened or read
    /// is an error.
    Result<Examination> examine() const;

private:
    class Private;
    explicit Store(std::unique_ptr<Private> d);
    std::unique_ptr<Private> d;
};

} // namespace history
