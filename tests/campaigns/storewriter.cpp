// SPDX-License-Identifier: MIT
// storewriter STORE FIRST UMASK: records the connections FIRST, FIRST + 1 ... until
// it is killed. Each line that it prints tells what the store has acknowledged, or
// what it is asked to remove next.
#include "RecordedConnection.h"
#include "history/Store.h"

#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace history;

namespace
{

void tell(const char *what, std::int64_t number, std::int64_t detail = 0)
{
    std::printf("%s %lld %lld\n", what, static_cast<long long>(number),
                static_cast<long long>(detail));
    std::fflush(stdout);
}

template <typename Value>
Value valueOrExit(Result<Value> result)
{
    if (result)
        return std::move(result.value());
    std::fprintf(stderr, "%s\n", result.error().message.c_str());
    std::exit(EXIT_FAILURE);
}

/// As a recorder does: begin, some checkpoints, finish.
void recordLive(Store &store, std::int64_t number)
{
    OpenConnection open = valueOrExit(store.begin(begunConnection(number)));
    tell("begun", number);
    for (int update = 1; update <= 3; ++update) {
        open.updatedUtc = open.startUtc + update;
        open.uploadedBytes = update;
        valueOrExit(store.checkpoint(open));
        tell("saved", number, update);
    }
    valueOrExit(store.finish(open, finishedConnection(number)));
    tell("finished", number);
}

void addAndRemove(Store &store, std::int64_t number, std::int64_t &keyToRemove,
                  std::int64_t &numberToRemove)
{
    const std::int64_t key = valueOrExit(store.add(finishedConnection(number)));
    tell("finished", number);
    if (keyToRemove != 0) {
        tell("removing", numberToRemove);
        valueOrExit(store.remove({keyToRemove}));
        tell("removed", numberToRemove);
    }
    keyToRemove = number % 4 == 0 ? 0 : key;
    numberToRemove = number;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4)
        return EXIT_FAILURE;
    umask(static_cast<mode_t>(std::strtoul(argv[3], nullptr, 8)));
    Store store = valueOrExit(Store::openOrCreate(argv[1]));
    std::int64_t keyToRemove = 0;
    std::int64_t numberToRemove = 0;
    for (std::int64_t number = std::atoll(argv[2]);; ++number) {
        if (number % 2 == 0)
            recordLive(store, number);
        else
            addAndRemove(store, number, keyToRemove, numberToRemove);
    }
}
