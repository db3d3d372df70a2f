// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/PasswordHash.h"

#include <sodium.h>

#include <stdexcept>

std::string hashPassword(const std::string &password)
{
    char hash[crypto_pwhash_STRBYTES];
    if (crypto_pwhash_str_alg(hash, password.data(), password.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE,
                              crypto_pwhash_ALG_ARGON2ID13)
        != 0)
        throw std::runtime_error("out of memory while hashing a password");
    return hash;
}

bool passwordMatches(const std::string &password, const std::string &hash)
{
    return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

void spendPasswordCheckTime(const std::string &password)
{
    static const std::string decoy = hashPassword("decoy password");
    passwordMatches(password, decoy);
}

std::string randomReadablePassword()
{
    static constexpr char alphabet[] = "abcdefghijkmnpqrstuvwxyzABCDEFGHJKLMNPQRSTUVWXYZ23456789";
    std::string password(12, ' ');
    for (char &c : password)
        c = alphabet[randombytes_uniform(sizeof alphabet - 1)];
    return password;
}
