// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

// A database connection slot and nothing else: owns the handle once set and
// closes it on destruction.
class ConnectionSlot
{
public:
    ConnectionSlot() = default;
    ~ConnectionSlot();
    ConnectionSlot(const ConnectionSlot &) = delete;
    ConnectionSlot &operator=(const ConnectionSlot &) = delete;

    sqlite3 *db = nullptr;
};
