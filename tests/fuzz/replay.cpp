// SPDX-License-Identifier: MIT
// Runs a fuzz target over the files of the folders given on the command line:
// what the fuzzer has found stays tested without it.
#include "Fuzz.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

static std::vector<std::uint8_t> contentsOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int folder = 1; folder < argc; ++folder) {
        for (const auto &entry : std::filesystem::directory_iterator(argv[folder])) {
            const auto contents = contentsOf(entry.path());
            LLVMFuzzerTestOneInput(contents.data(), contents.size());
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
