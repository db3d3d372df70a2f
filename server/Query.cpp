// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Query.h"

#include "server/InputRules.h"

Query::Query(const httplib::Params &params)
    : m_params(params)
{
    for (const auto &[key, value] : params) {
        if (!isValidUtf8(key))
            throw BadInput("Invalid UTF-8 in a parameter name.");
        if (!isValidUtf8(value))
            throw BadInput("Invalid UTF-8 in parameter: " + key);
        if (characterCount(key) > maxCharacters || characterCount(value) > maxCharacters)
            throw BadInput("Parameter too long: " + key.substr(0, 40) + " (at most 255 characters)");
    }
}

std::string Query::optional(const char *key) const
{
    const auto found = m_params.find(key);
    return found == m_params.end() ? std::string() : found->second;
}

std::string Query::required(const char *key) const
{
    std::string value = optional(key);
    if (value.empty())
        throw BadInput(std::string("Missing parameter: ") + key);
    return value;
}

std::int64_t Query::wholeNumber(const char *key) const
{
    const std::optional<std::int64_t> number = parseDecimalInteger(required(key));
    if (!number)
        throw BadInput(std::string("Malformed parameter: ") + key + " must be a whole number");
    return *number;
}

double Query::coordinate(const char *key, double limit) const
{
    const std::optional<double> value = parseCoordinate(required(key), limit);
    if (!value)
        throw BadInput(std::string("Malformed parameter: ") + key + " must be a decimal number within ±" + std::to_string(static_cast<int>(limit)));
    return *value;
}
