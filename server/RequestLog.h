// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <httplib.h>

#include <string>

// A handler names where an answer's readings came from ("simulated", ...) in
// this response header; the console line shows it in brackets.
inline constexpr const char *readingSourceHeader = "X-Tarnelo-Source";

// The console line for a served request: method, path and query as received
// (still percent-encoded), status, and where readings came from, e.g.
//   GET /tarnelo/v1/login.php?username=a%40b.test&passcode=*** -> 200
//   GET /tarnelo/v1/airquality.php?lat=51.5&lon=-0.12 -> 200 [simulated]
// Credentials never appear: the values of password, passcode, userid and
// user_id (session tokens) and appid (the history service's key). Control
// characters and other bytes outside printable ASCII are percent-encoded, so
// that a request cannot forge console lines.
std::string requestLogLine(const httplib::Request &request, const httplib::Response &response);
