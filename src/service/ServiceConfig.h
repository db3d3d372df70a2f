// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>

// Where the services are and how to reach them. Each value is fixed when the
// app is built; an environment variable of the same name replaces it, so that
// development runs and tests can point the app at a local backend.
namespace ServiceConfig
{
// Scheme and host of the backend, without a trailing slash (TARNELO_BACKEND_URL).
QString backendHost();
// Scheme and host of the air-pollution history service (TARNELO_HISTORY_URL).
QString historyHost();
// The history service's key (TARNELO_OWM_KEY).
QString historyKey();
// A PEM file of extra certificate authorities to trust, or empty (TARNELO_CA_FILE).
// A relative built-in name lies in the user's data directory, where a backend
// installed with the app writes its certificate; a relative name in the
// variable is taken from the working directory, as any command-line path is.
QString extraCaFile();
// How long a request may take in all, answer included, before it is
// abandoned (TARNELO_REQUEST_DEADLINE, whole seconds).
std::chrono::seconds requestDeadline();
} // namespace ServiceConfig
