// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/ConnectionSlot.h"

// Holds a connection slot only; nothing opens it or gives it tables yet.
class SQliteMedical : public ConnectionSlot
{
};
