// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/SimulationCell.h"

#include "server/UtcTime.h"

#include <sodium.h>

#include <array>
#include <cmath>
#include <cstring>

SimulationCell simulationCell(double lat, double lon, std::time_t when)
{
    SimulationCell cell;
    cell.latIndex = std::llround(lat * 100);
    cell.lonIndex = std::llround(lon * 100);
    cell.lat = static_cast<double>(cell.latIndex) / 100;
    cell.lon = static_cast<double>(cell.lonIndex) / 100;
    cell.hour = static_cast<std::int64_t>(std::floor(static_cast<double>(when) / 3600));
    const std::tm fields = utcFields(static_cast<std::time_t>(cell.hour * 3600));
    cell.localSolarHour = std::fmod(fields.tm_hour + cell.lon / 15 + 48, 24);
    cell.yearFraction = fields.tm_yday / 365.0;
    return cell;
}

double SimulationCell::noise(double low, double high, int stream, bool hourly) const
{
    // SipHash with a fixed key: the numbers must repeat from run to run, not be secret.
    static constexpr unsigned char key[crypto_shorthash_KEYBYTES] = { 'T', 'a', 'r', 'n', 'e', 'l', 'o', ' ', 's', 'i', 'm', 'u', 'l', 'a', 't', 'e' };
    const std::array<std::int64_t, 4> words { latIndex, lonIndex, hourly ? hour : -1, stream };
    unsigned char bytes[sizeof words];
    std::memcpy(bytes, words.data(), sizeof bytes);
    unsigned char digest[crypto_shorthash_BYTES];
    crypto_shorthash(digest, bytes, sizeof bytes, key);
    std::uint64_t value = 0;
    std::memcpy(&value, digest, sizeof value);
    const double unit = static_cast<double>(value >> 11) * 0x1.0p-53;
    return low + (high - low) * unit;
}
