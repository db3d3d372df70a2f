// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Database;

// Creates the tables a fresh data directory lacks; an existing file is kept as it is.
void createSchema(Database &db);
