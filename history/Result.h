// SPDX-License-Identifier: MIT
#pragma once

#include "Sentence.h"

#include <string>
#include <utility>
#include <variant>

namespace history
{

/// Why the store could not do what was asked: a kind for programs and one whole
/// sentence for people (what, where, what to do), in English and in parts.
struct StoreError {
    enum class Kind {
        CannotOpen,   ///< no permission, no folder, read-only disk
        NotAStore,    ///< the file is something else; it was left untouched
        NewerStore,   ///< written by a newer version; it was left untouched
        Damaged,      ///< the file is a store, but its contents are broken
        Locked,       ///< another process kept the store locked for too long
        WriteFailed,  ///< disk full or read-only while writing; nothing was changed
        BadRecord,    ///< a value outside its range
        NoSuchRecord, ///< the record to remove is not there
    };

    Kind kind;
    std::string message;
    Sentence sentence; ///< what the message is made of; without parts where few meet it
};

/// A value or the reason why there is none. value() may be asked for only when
/// the result is true, error() only when it is false.
template <typename T>
class Result
{
public:
    Result(T value)
        : m_content(std::move(value))
    {
    }
    Result(StoreError error)
        : m_content(std::move(error))
    {
    }

    explicit operator bool() const { return m_content.index() == 0; }
    T &value() { return *std::get_if<0>(&m_content); }
    const T &value() const { return *std::get_if<0>(&m_content); }
    const StoreError &error() const { return *std::get_if<1>(&m_content); }

private:
    std::variant<T, StoreError> m_content;
};

} // namespace history
