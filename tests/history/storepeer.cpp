// SPDX-License-Identifier: MIT
// A process beside the test's own: reads one command per line from standard
// input and answers each with one line, "ok ..." or "failed ...".
#include "KoraStatistics.h"
#include "StoreErrorNames.h"
#include "history/Store.h"

#include <SQLiteCpp/Database.h>

#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using history::Connection;
using history::Store;

namespace
{

std::string done(bool isDone)
{
    return isDone ? "ok" : std::string("failed ") + std::strerror(errno);
}

std::string answer(const history::StoreError &error)
{
    return std::string("failed ") + nameOf(error.kind) + " " + error.message;
}

template <typename Value>
std::string answer(const history::Result<Value> &result)
{
    return result ? "ok " + std::to_string(result.value()) : answer(result.error());
}

Connection connectionAt(std::int64_t second)
{
    Connection connection;
    connection.profile = "peer";
    connection.startUtc = second;
    connection.endUtc = second + 1;
    return connection;
}

std::vector<Connection> manyConnections(int count)
{
    std::vector<Connection> connections;
    connections.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        connections.push_back(connectionAt(i));
    return connections;
}

std::string add(std::istream &words)
{
    std::string path;
    std::int64_t second = 0;
    words >> path >> second;
    auto store = Store::openOrCreate(path);
    return store ? answer(store.value().add(connectionAt(second))) : answer(store.error());
}

/// "begin PATH SECOND" answers with the key for the other two.
std::string begin(std::istream &words)
{
    std::string path;
    history::OpenConnection open;
    words >> path >> open.startUtc;
    open.bootId = "boot";
    auto store = Store::openForRecording(path);
    if (!store)
        return answer(store.error());
    const auto begun = store.value().begin(open);
    return begun ? "ok " + std::to_string(begun.value().key) : answer(begun.error());
}

/// "checkpoint PATH KEY BYTES": so many have been sent.
std::string checkpoint(std::istream &words)
{
    std::string path;
    history::OpenConnection open;
    words >> path >> open.key >> open.uploadedBytes;
    open.bootId = "boot";
    auto store = Store::openForRecording(path);
    return store ? answer(store.value().checkpoint(open)) : answer(store.error());
}

std::string finish(std::istream &words)
{
    std::string path;
    history::OpenConnection open;
    std::int64_t second = 0;
    words >> path >> open.key >> second;
    open.bootId = "boot";
    auto store = Store::openForRecording(path);
    return store ? answer(store.value().finish(open, connectionAt(second))) : answer(store.error());
}

/// Of the first connection that is open.
std::string openBytes(std::istream &words)
{
    std::string path;
    words >> path;
    const auto store = Store::openForReading(path);
    if (!store)
        return answer(store.error());
    const auto open = store.value().listOpen();
    if (!open)
        return answer(open.error());
    return open.value().empty() ? "none"
                                : "ok " + std::to_string(open.value().front().uploadedBytes);
}

std::string addMany(std::istream &words)
{
    std::string path;
    int count = 0;
    words >> path >> count;
    auto store = Store::openOrCreate(path);
    return store ? answer(store.value().addMissing(manyConnections(count))) : answer(store.error());
}

std::string count(std::istream &words)
{
    std::string path;
    words >> path;
    const auto store = Store::openForReading(path);
    if (!store)
        return answer(store.error());
    const auto connections = store.value().list();
    return connections ? "ok " + std::to_string(connections.value().size())
                       : answer(connections.error());
}

/// "hold PATH COUNT": adds so many at once and keeps the store open until the process
/// ends.
std::string hold(std::istream &words)
{
    std::string path;
    int count = 0;
    words >> path >> count;
    static std::vector<Store> held;
    auto store = Store::openForRecording(path);
    if (!store)
        return answer(store.error());
    held.push_back(std::move(store.value()));
    return answer(held.back().addMissing(manyConnections(count)));
}

/// Holds the whole database until the process ends.
std::string lock(std::istream &words)
{
    std::string path;
    words >> path;
    static std::unique_ptr<SQLite::Database> database;
    try {
        database = std::make_unique<SQLite::Database>(path, SQLite::OPEN_READWRITE);
        database->exec("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
    } catch (const SQLite::Exception &exception) {
        return std::string("failed ") + exception.what();
    }
    return "ok";
}

std::string list(std::istream & /*words*/)
{
    _KORA_ST_CONNRECORD *records = nullptr;
    int number = 0;
    const int status = KORA_Statistics_GetAllConnRecord(&records, &number);
    KORA_Statistics_ReleaseConnRecord(records);
    return status == 0 ? "ok " + std::to_string(number) : "failed " + std::to_string(status);
}

std::string remove(std::istream &words)
{
    int index = 0;
    words >> index;
    return "ok " + std::to_string(KORA_Statistics_ConnRecord_RemoveRecord(index));
}

std::string setUmask(std::istream &words)
{
    mode_t mask = 0;
    words >> std::oct >> mask;
    umask(mask);
    return "ok";
}

/// Lets the file permissions bind this process even when root runs the tests.
std::string becomeNobody(std::istream & /*words*/)
{
    constexpr unsigned nobody = 65534;
    return done(setgroups(0, nullptr) == 0 && setresgid(nobody, nobody, nobody) == 0 &&
                setresuid(nobody, nobody, nobody) == 0);
}

/// Puts a small disk of memory at a folder, visible to this process alone.
std::string mountSmallDisk(std::istream &words)
{
    std::string folder;
    words >> folder;
    return done(unshare(CLONE_NEWNS) == 0 &&
                mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=512k,mode=700") == 0);
}

std::string remountReadOnly(std::istream &words)
{
    std::string folder;
    words >> folder;
    return done(mount("tmpfs", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0);
}

std::string fillDisk(std::istream &words)
{
    std::string path;
    words >> path;
    const int file = open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
    const std::vector<char> block(4096, 'x');
    while (write(file, block.data(), block.size()) > 0) {
    }
    const bool isFull = errno == ENOSPC;
    close(file);
    return done(isFull);
}

std::string removeFile(std::istream &words)
{
    std::string path;
    words >> path;
    return done(unlink(path.c_str()) == 0);
}

using Command = std::function<std::string(std::istream &)>;

const std::map<std::string, Command> &commands()
{
    static const std::map<std::string, Command> all = {
        {"add", add},
        {"add-many", addMany},
        {"become-nobody", becomeNobody},
        {"begin", begin},
        {"checkpoint", checkpoint},
        {"count", count},
        {"fill-disk", fillDisk},
        {"finish", finish},
        {"hold", hold},
        {"list", list},
        {"lock", lock},
        {"mount-small-disk", mountSmallDisk},
        {"open-bytes", openBytes},
        {"remount-read-only", remountReadOnly},
        {"remove", remove},
        {"remove-file", removeFile},
        {"umask", setUmask},
    };
    return all;
}

} // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string name;
        words >> name;
        std::cout << commands().at(name)(words) << std::endl;
    }
    return EXIT_SUCCESS;
}
