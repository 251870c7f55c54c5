// SPDX-License-Identifier: MIT
#pragma once

#include "PowerDisk.h"

#include <sqlite3.h>

/// While it lives, SQLite keeps all its files on this disk: its file layer is the usual
/// one, which tells the disk of each change and fails once the power is off.
class PowerVfs
{
public:
    explicit PowerVfs(PowerDisk &disk);
    ~PowerVfs();
    PowerVfs(const PowerVfs &) = delete;
    PowerVfs &operator=(const PowerVfs &) = delete;

    PowerDisk &disk() { return m_disk; }
    sqlite3_vfs &usual() { return *m_usual; }

private:
    PowerDisk &m_disk;
    sqlite3_vfs *m_usual;
    sqlite3_vfs m_vfs;
};
