// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/QuickTestSetup.h"

#include <QtQuickTest>

QUICK_TEST_MAIN_WITH_SETUP(subscriptionview, QuickTestSetup)
