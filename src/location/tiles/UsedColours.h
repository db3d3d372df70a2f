// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

// The 8-bit image with its colour table cut down to the colours it uses: a
// PNG stores the whole table, three bytes a colour, which for an all-water
// tile would be most of its file.
QImage withUsedColoursOnly(const QImage &indexed);
