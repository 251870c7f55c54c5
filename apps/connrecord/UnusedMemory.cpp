// SPDX-License-Identifier: MIT
#include "UnusedMemory.h"

#include <elf.h>
#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

namespace connrecord
{

namespace
{

/// Only what nobody can have changed comes back as it is.
bool isReadOnlyPartOfFile(const ElfW(Phdr) & segment)
{
    return segment.p_type == PT_LOAD && (segment.p_flags & PF_W) == 0;
}

void giveBack(std::uintptr_t start, std::uintptr_t size)
{
    const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t first = start / pageSize * pageSize;
    madvise(reinterpret_cast<void *>(first), start + size - first, MADV_DONTNEED);
}

int giveBackLibrary(dl_phdr_info *library, std::size_t /*size*/, void * /*data*/)
{
    for (int i = 0; i < library->dlpi_phnum; ++i) {
        const auto &segment = library->dlpi_phdr[i];
        if (isReadOnlyPartOfFile(segment))
            giveBack(library->dlpi_addr + segment.p_vaddr, segment.p_memsz);
    }
    return 0;
}

} // namespace

void giveBackUnusedMemory()
{
    malloc_trim(0);
    dl_iterate_phdr(giveBackLibrary, nullptr);
}

} // namespace connrecord
