// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/PasswordHash.h"

#include <sodium.h>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace
{
// Each hash or check takes 64 MiB for about 0.1 s of one core, and many
// workers serve requests at once: a burst of logins would take workers ×
// 64 MiB. Running no more of them at once than there are cores costs no
// throughput and bounds the memory; the others wait their turn.
std::mutex slotMutex;
std::condition_variable slotFreed;
unsigned slotsBusy = 0;
const unsigned slotCount = std::max(2u, std::thread::hardware_concurrency());

class HashingSlot
{
public:
    HashingSlot()
    {
        std::unique_lock<std::mutex> lock(slotMutex);
        slotFreed.wait(lock, [] { return slotsBusy < slotCount; });
        ++slotsBusy;
    }
    ~HashingSlot()
    {
        {
            const std::lock_guard<std::mutex> lock(slotMutex);
            --slotsBusy;
        }
        slotFreed.notify_one();
    }
    HashingSlot(const HashingSlot &) = delete;
    HashingSlot &operator=(const HashingSlot &) = delete;
};
} // namespace

std::string hashPassword(const std::string &password)
{
    const HashingSlot slot;
    char hash[crypto_pwhash_STRBYTES];
    if (crypto_pwhash_str_alg(hash, password.data(), password.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE,
                              crypto_pwhash_ALG_ARGON2ID13)
        != 0)
        throw std::runtime_error("out of memory while hashing a password");
    return hash;
}

bool passwordMatches(const std::string &password, const std::string &hash)
{
    const HashingSlot slot;
    return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

std::string randomReadablePassword()
{
    static constexpr char alphabet[] = "abcdefghijkmnpqrstuvwxyzABCDEFGHJKLMNPQRSTUVWXYZ23456789";
    std::string password(12, ' ');
    for (char &c : password)
        c = alphabet[randombytes_uniform(sizeof alphabet - 1)];
    return password;
}
