// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QQmlEngine;
class RootController;

namespace QmlTypes
{
// The one place where the app's C++ types and singletons become visible to
// QML (module "Tarnelo" 1.0). The app and the QML tests both call it.
void registerAll(QQmlEngine &engine, RootController *rootController);
} // namespace QmlTypes
