// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// How the backend and the device's store write a gender: "1", "2" or "3",
// the position of its label in the picker counted from 1. Whatever else may
// come back (an old or foreign value) reads as "Others".
namespace GenderCode
{
// The picker's labels, in the order their codes count.
QStringList labels();
QString labelFor(const QString &code);
// The code of a label; empty for anything not in labels().
QString codeFor(const QString &label);
} // namespace GenderCode
