// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SQliteMedical.h"

#include <sqlite3.h>

SQliteMedical::~SQliteMedical()
{
    if (db)
        sqlite3_close(db);
}
