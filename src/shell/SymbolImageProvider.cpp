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
// In bytes: some hundred icons of the sizes the screens draw.
constexpr int cacheBytes = 1024 * 1024;
} // namespace

SymbolImageProvider::SymbolImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_drawn(cacheBytes)
{
}

QString SymbolImageProvider::resourceFor(const QString &symbolName)
{
    return QStringLiteral(":/symbols/") + symbolName + QStringLiteral(".svg");
}

QImage SymbolImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QSize side(requestedSize.width() > 0 ? requestedSize.width() : defaultSide, requestedSize.height() > 0 ? requestedSize.height() : defaultSide);
    if (size)
        *size = side;
    const QString key = id + QLatin1Char('@') + QString::number(side.width()) + QLatin1Char('x') + QString::number(side.height());
    const QMutexLocker locker(&m_lock);
    if (const QImage *drawn = m_drawn.object(key))
        return *drawn;

    const int separator = id.indexOf(QLatin1Char('?'));
    const QColor colour(separator < 0 ? QStringLiteral("black") : id.mid(separator + 1));
    const QImage image = draw(id.left(separator), colour.isValid() ? colour : QColor(Qt::black), side);
    m_drawn.insert(key, new QImage(image), static_cast<int>(image.sizeInBytes()));
    return image;
}

QImage SymbolImageProvider::draw(const QString &name, const QColor &colour, const QSize &side)
{
    QImage image(side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(resourceFor(name));
    if (!renderer.isValid()) {
        qCWarning(lcShell) << "no icon for symbol" << name;
        return image;
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    return image;
}
