// SPDX-License-Identifier: MIT
#pragma once

#include "Result.h"

#include <exception>
#include <new>
#include <string>
#include <utility>

namespace history
{

/// How errors travel inside the library; none leaves it.
class StoreFailure : public std::exception
{
public:
    StoreFailure(StoreError::Kind kind, std::string message)
        : m_error{kind, std::move(message), {}}
    {
    }
    StoreFailure(StoreError::Kind kind, Sentence sentence)
        : m_error{kind, inEnglish(sentence), std::move(sentence)}
    {
    }

    const StoreError &error() const { return m_error; }
    const char *what() const noexcept override { return m_error.message.c_str(); }

private:
    StoreError m_error;
};

/// What was going on when an error occurred; a full disk means something else
/// to a reader than to a writer.
enum class Access { Opening, Reading, Writing };

/// The seconds for which an operation waits for another process's lock.
constexpr int lockTimeoutSeconds = 5;

/// The milliseconds for which one does that is tried again soon anyway and must not
/// hold up whoever asks for it.
constexpr int shortLockTimeoutMilliseconds = 100;

/// The file's path the way a sentence names it.
std::string historyAt(const std::string &path);

/// The errors for a file that is something else than a store, which stays untouched.
/// `text` says what it is, and names its path.
StoreFailure notAStore(const std::string &path, Translatable text);
StoreFailure anotherDatabase(const std::string &path);

/// The error for a store whose contents are broken.
StoreFailure damaged(const std::string &path, const Part &reason);

/// The error for a file or folder that the system call behind `errorNumber`
/// could not reach or make.
StoreFailure cannotOpen(const std::string &path, int errorNumber);

/// The error for a result code of SQLite; `systemError` is the errno behind it, 0
/// for none.
StoreFailure sqliteFailure(const std::string &path, Access access, int code, int systemError,
                           const std::string &reason);

/// The errors for what has nothing to do with the store: memory, or an exception
/// thrown by a function that the caller has given.
StoreFailure outOfMemory(const std::string &path);
StoreFailure interrupted(const std::string &path, const std::string &reason);

/// Calls `operation` and gives back its value, or the error that it threw.
template <typename Operation>
auto attempt(const std::string &path, Operation operation) -> Result<decltype(operation())>
{
    try {
        return operation();
    } catch (const StoreFailure &failure) {
        return failure.error();
    } catch (const std::bad_alloc &) {
        return outOfMemory(path).error();
    } catch (const std::exception &exception) {
        return interrupted(path, exception.what()).error();
    }
}

} // namespace history
