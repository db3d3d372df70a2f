// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QMutex>
#include <QQuickImageProvider>

// Serves the app's symbols ("house.fill", "bell.fill", ...) as tinted images:
// "image://symbol/<name>?<colour>". Tinting here rather than with a shader
// effect keeps icons visible on the software renderer used headless.
//
// Each symbol is drawn once per colour and size: a tab that changes colour,
// or a screen opened again, takes the drawing from a small cache instead of
// reading and rendering its SVG anew.
class SymbolImageProvider : public QQuickImageProvider
{
public:
    SymbolImageProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // The SVG resource that draws a symbol; symbols.tsv says which icon stands for which name.
    static QString resourceFor(const QString &symbolName);

private:
    static QImage draw(const QString &name, const QColor &colour, const QSize &side);

    // Images are asked for on the GUI thread and, for asynchronous images, on Qt Quick's loader thread.
    QMutex m_lock;
    QCache<QString, QImage> m_drawn;
};
