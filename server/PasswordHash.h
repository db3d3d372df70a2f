// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// Argon2id strings as libsodium makes them, with its interactive limits
// (about 0.1 s and 64 MiB per hash). Call sodium_init() first.
std::string hashPassword(const std::string &password);
bool passwordMatches(const std::string &password, const std::string &hash);

// A fresh random password that is easy to read and type: 12 characters from an
// alphabet without look-alikes such as 0/O and 1/l/I.
std::string randomReadablePassword();
