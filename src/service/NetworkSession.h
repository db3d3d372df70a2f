// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QNetworkAccessManager;

// The one HTTP session of the process, shared by every request the app sends
// (the only object that lives for the whole run). Made on first use on the
// main thread and owned by the application object; replies arrive on the main
// thread.
QNetworkAccessManager &sharedNetworkSession();
