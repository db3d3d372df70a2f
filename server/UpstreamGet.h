// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <stdexcept>
#include <string>

// Why an upstream gave no usable answer: no connection, a status other than
// 200, no complete answer in time, or an answer of an unexpected shape.
class UpstreamError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The body of GET baseUrl + target (baseUrl as "https://host[:port]"), or an
// UpstreamError. The whole exchange, name lookup included, ends by the deadline:
// a lookup or peer that stalls is left to finish on its own thread while the
// caller goes on. Bodies over 2 MiB are refused.
std::string upstreamGet(const std::string &baseUrl, const std::string &target, std::chrono::milliseconds deadline);
