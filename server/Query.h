// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <httplib.h>

#include <cstdint>
#include <stdexcept>
#include <string>

// Input the request got wrong; its message is shown to the person as it is.
class BadInput : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The decoded query of one request. Every value is checked on construction
// (valid UTF-8, at most 255 characters); the accessors then throw BadInput
// naming the key that is missing or malformed. A repeated key counts once.
class Query
{
public:
    static constexpr size_t maxCharacters = 255;

    explicit Query(const httplib::Params &params);

    // Present and not empty.
    std::string required(const char *key) const;
    // Empty when absent.
    std::string optional(const char *key) const;
    // A required whole number: decimal digits only.
    std::int64_t wholeNumber(const char *key) const;
    // A required decimal number within ±limit.
    double coordinate(const char *key, double limit) const;

private:
    const httplib::Params &m_params;
};
