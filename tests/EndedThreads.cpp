// SPDX-License-Identifier: MIT
// Qt's test library ends each test with a thread of its own, and waits for
// its last line of code only: what the thread then still frees looks like a leak if
// the process ends first. So a sanitized test ends when its threads are gone.
#include <dirent.h>
#include <sched.h>

#include <chrono>

namespace
{

int threadCount()
{
    DIR *const tasks = opendir("/proc/self/task");
    if (!tasks)
        return 1;
    int count = 0;
    while (const dirent *task = readdir(tasks)) {
        if (task->d_name[0] != '.')
            ++count;
    }
    closedir(tasks);
    return count;
}

struct EndedThreads {
    ~EndedThreads()
    {
        using Clock = std::chrono::steady_clock;
        const auto end = Clock::now() + std::chrono::seconds(1); // some live as long as the process
        while (threadCount() > 1 && Clock::now() < end)
            sched_yield();
    }
};

const EndedThreads endedThreads;

} // namespace
