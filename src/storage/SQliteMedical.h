// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

// Holds a connection slot only; nothing opens it or gives it tables yet.
class SQliteMedical
{
public:
    SQliteMedical() = default;
    ~SQliteMedical();
    SQliteMedical(const SQliteMedical &) = delete;
    SQliteMedical &operator=(const SQliteMedical &) = delete;

    // Owned by this object once set.
    sqlite3 *db = nullptr;
};
