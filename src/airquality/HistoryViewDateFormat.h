// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The locale's short formats cut to what a week's history needs. Qt has no
// month-and-day or hour-and-minute format of the locale, so these drop a
// field, with the separator beside it, from the locale's short date and time
// formats: "M/d/yy" gives "M/d", "yyyy-MM-dd" gives "MM-dd", "HH:mm:ss" gives
// "HH:mm" and "h:mm:ss AP" gives "h:mm AP".
QString yearlessDateFormat(const QString &shortDateFormat);
QString secondlessTimeFormat(const QString &shortTimeFormat);
