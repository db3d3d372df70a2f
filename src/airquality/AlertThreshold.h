// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

struct ProfileMedDetailsModel;

// Where air alerts start for a user, and why: "Unhealthy for sensitive groups"
// (category 3) when their medical profile records a condition or a smoker,
// "Unhealthy" (4) otherwise.
struct AlertThreshold {
    int category = 4;
    QString reason;
};

// From the medical profile the backend holds; none yet counts as neither.
AlertThreshold alertThresholdFor(const QVector<ProfileMedDetailsModel> &profiles);
