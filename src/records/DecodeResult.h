// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>
#include <utility>

// Outcome of decoding an answer: either the value, or a text saying which key
// was wrong and how. Decoding never throws, so callers can print the reason and
// keep what they showed before.
template<typename T> struct DecodeResult {
    std::optional<T> value;
    QString error;

    bool ok() const { return value.has_value(); }

    static DecodeResult success(T v) { return DecodeResult { std::optional<T>(std::move(v)), QString() }; }
    static DecodeResult failure(QString message) { return DecodeResult { std::nullopt, std::move(message) }; }
};
