// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QQuickImageProvider>

// Serves the app's symbols ("house.fill", "bell.fill", ...) as tinted images:
// "image://symbol/<name>?<colour>". Tinting here rather than with a shader
// effect keeps icons visible on the software renderer used headless.
class SymbolImageProvider : public QQuickImageProvider
{
public:
    SymbolImageProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // The SVG resource that draws a symbol; symbols.tsv says which icon stands for which name.
    static QString resourceFor(const QString &symbolName);
};
