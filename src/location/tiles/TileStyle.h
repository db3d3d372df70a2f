// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QRgb>
#include <QVector>

// How the offline tiles look: a quiet map on which the app's own dot, pin and
// cards stand out. The tests read the colours here to tell land from water.
namespace TileStyle
{
constexpr QRgb water = qRgb(0xB4, 0xD5, 0xEC);
constexpr QRgb land = qRgb(0xF4, 0xF1, 0xEA);
// A shade darker than the land, so that borders read without shouting.
constexpr QRgb border = qRgb(0xC4, 0xB8, 0xAC);
constexpr QRgb labelText = qRgb(0x3C, 0x3C, 0x43);
// Around each letter, so that a name stays readable across a border or a coast.
constexpr QRgb labelHalo = qRgb(0xFF, 0xFF, 0xFF);

// The colours a tile is stored in: those above and, between each two of
// them, the blends that antialiased edges and letters make. Few enough for an
// 8-bit palette, which keeps the shipped tiles small.
QVector<QRgb> palette();

QFont labelFont(bool capital);
} // namespace TileStyle
