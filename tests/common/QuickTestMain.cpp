// SPDX-License-Identifier: GPL-3.0-or-later
// The runner of a Qt Quick test that needs no setup beyond the common one.
#include "common/QuickTestSetup.h"

#include <QtQuickTest>

QUICK_TEST_MAIN_WITH_SETUP(tarnelo, QuickTestSetup)
