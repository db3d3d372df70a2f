// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct sqlite3;

// Holds a connection slot only; nothing opens it or gives it tables yet.
class SQliteSubscription
{
public:
    SQliteSubscription() = default;
    ~SQliteSubscription();
    SQliteSubscription(const SQliteSubscription &) = delete;
    SQliteSubscription &operator=(const SQliteSubscription &) = delete;

    // Owned by this object once set.
    sqlite3 *db = nullptr;
};
