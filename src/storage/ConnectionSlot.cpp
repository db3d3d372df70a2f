// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConnectionSlot.h"

#include <sqlite3.h>

ConnectionSlot::~ConnectionSlot()
{
    if (db)
        sqlite3_close(db);
}
