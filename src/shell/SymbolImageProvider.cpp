// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SymbolImageProvider.h"

#include "shell/ShellLogging.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace
{
constexpr int defaultSide = 24;
}

SymbolImageProvider::SymbolImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QString SymbolImageProvider::resourceFor(const QString &symbolName)
{
    return QStringLiteral(":/symbols/") + symbolName + QStringLiteral(".svg");
}

QImage SymbolImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const int separator = id.indexOf(QLatin1Char('?'));
    const QString name = id.left(separator);
    const QColor colour(separator < 0 ? QStringLiteral("black") : id.mid(separator + 1));

    const QSize side(requestedSize.width() > 0 ? requestedSize.width() : defaultSide, requestedSize.height() > 0 ? requestedSize.height() : defaultSide);
    QImage image(side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (size)
        *size = side;

    QSvgRenderer renderer(resourceFor(name));
    if (!renderer.isValid()) {
        qCWarning(lcShell) << "no icon for symbol" << name;
        return image;
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour.isValid() ? colour : QColor(Qt::black));
    return image;
}
