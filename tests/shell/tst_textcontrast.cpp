// SPDX-License-Identifier: GPL-3.0-or-later
// Text stays readable: every text colour the screens put on a background
// reaches 4.5:1 against it, with the colours taken from the app's theme as
// the screens see it. Large text would need only 3:1, but each of these pairs
// also carries small text somewhere, so all of them are held to 4.5:1.
#include "shell/QmlTypes.h"
#include "shell/RootController.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{
const double minimumContrast = 4.5;

struct TextOnBackground {
    const char *where;
    const char *text;
    const char *background;
    // A translucent theme colour laid over the background, or none.
    const char *tint;
};

// The pairs the screens use, by their names in the theme.
const TextOnBackground pairs[] = {
    { "body text", "label", "surface", nullptr },
    { "body text on the grouped background", "label", "background", nullptr },
    { "alert message", "label", "alertBackground", nullptr },
    { "alert button", "blue", "alertBackground", nullptr },
    { "captions and prompts", "secondaryLabel", "surface", nullptr },
    { "captions on the grouped background", "secondaryLabel", "background", nullptr },
    { "dates and placeholders", "tertiaryLabel", "surface", nullptr },
    { "empty screens", "tertiaryLabel", "background", nullptr },
    { "links and choices", "blue", "surface", nullptr },
    { "links on the grouped background", "blue", "background", nullptr },
    { "filled buttons and the dashboard header", "white", "blue", nullptr },
    { "readings on the dashboard header", "white", "blue", "tileTint" },
    { "tip and pollutant cards", "white", "kPrimary", nullptr },
    { "weather panel", "white", "weatherPanel", nullptr },
    { "weather readings", "white", "weatherPanel", "tileTint" },
    { "tables and tips", "kOthers", "surface", nullptr },
    { "account titles", "kPrimary", "surface", nullptr },
};

// Relative luminance as WCAG defines it, from sRGB.
double luminance(const QColor &colour)
{
    const auto linear = [](double channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

// What the renderer shows for a translucent colour over an opaque one.
QColor over(const QColor &tint, const QColor &base)
{
    const double alpha = tint.alphaF();
    const auto mix = [alpha](double top, double bottom) { return alpha * top + (1 - alpha) * bottom; };
    return QColor::fromRgbF(mix(tint.redF(), base.redF()), mix(tint.greenF(), base.greenF()), mix(tint.blueF(), base.blueF()));
}

} // namespace

class TextContrastTest : public QObject
{
    Q_OBJECT

private:
    QColor themeColour(const char *name) const
    {
        const QVariant value = m_theme->property(name);
        return value.canConvert<QColor>() ? value.value<QColor>() : QColor();
    }

    RootController m_rootController;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_holder;
    // The engine's singleton, owned by the engine.
    QObject *m_theme = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        QmlTypes::registerAll(m_engine, &m_rootController);
        QQmlComponent component(&m_engine);
        component.setData("import QtQml 2.15\nimport Tarnelo 1.0\nQtObject { readonly property QtObject theme: Theme }", QUrl());
        m_holder.reset(component.create());
        QVERIFY2(m_holder, qPrintable(component.errorString()));
        m_theme = m_holder->property("theme").value<QObject *>();
        QVERIFY(m_theme);
    }

    void themeTextReachesItsMinimum()
    {
        QStringList unreadable;
        for (const TextOnBackground &pair : pairs) {
            const QColor text = themeColour(pair.text);
            QColor background = themeColour(pair.background);
            QVERIFY2(text.isValid() && background.isValid(), pair.where);
            if (pair.tint)
                background = over(themeColour(pair.tint), background);
            const double ratio = contrast(text, background);
            if (ratio < minimumContrast)
                unreadable << QStringLiteral("%1: %2 on %3 is %4:1").arg(QLatin1String(pair.where), text.name(), background.name()).arg(ratio, 0, 'f', 2);
        }
        QVERIFY2(unreadable.isEmpty(), qPrintable(unreadable.join(QLatin1String("\n  "))));
    }
};

QTEST_MAIN(TextContrastTest)
#include "tst_textcontrast.moc"
