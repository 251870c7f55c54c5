// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

/// What libFuzzer calls: once, then for every input. Each returns 0.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz
{

/// Ends the process, as a memory error would, unless `isTrue`: so libFuzzer keeps
/// the input and the replay fails.
void require(bool isTrue, const char *what);

/// Drops what a library writes to stderr about bad input; reports of libFuzzer
/// and of the sanitizers still come.
void silenceLibraries();

} // namespace fuzz
