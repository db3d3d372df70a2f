// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SQliteSubscription.h"

#include <sqlite3.h>

SQliteSubscription::~SQliteSubscription()
{
    if (db)
        sqlite3_close(db);
}
