// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/PositionSetting.h"

class QGeoPositionInfoSource;
class QObject;

// The position source for a setting, owned by `parent`; null where the
// setting has none (denied, none) or the device offers none.
QGeoPositionInfoSource *createPositionSource(const PositionSetting &setting, QObject *parent);
