// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "airquality/PositionedPanel.h"

#include <optional>

struct WeatherData;

// The dashboard's weather panel: the weather at the user's position as the
// backend reports it, the temperature in kelvin.
class MainWeatherViewModel : public PositionedPanel
{
    Q_OBJECT
    Q_PROPERTY(QString txt_temp MEMBER txt_temp NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_humid MEMBER txt_humid NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_wind MEMBER txt_wind NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_uv MEMBER txt_uv NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pollen MEMBER txt_pollen NOTIFY readingsChanged)
    Q_PROPERTY(QString celsiusText READ celsiusText NOTIFY readingsChanged)

public:
    explicit MainWeatherViewModel(QObject *parent = nullptr);

    // The temperature in whole degrees Celsius, as "28.0°C".
    QString celsiusText() const { return m_celsiusText; }
    // Kelvin text to the shown text ("28.0°C"), and to its number alone
    // ("28.0"); nothing for a text that is not a number.
    static std::optional<QString> celsiusTextFor(const QString &kelvin);
    static std::optional<QString> roundedCelsiusFor(const QString &kelvin);

Q_SIGNALS:
    void readingsChanged();

private:
    void requestReadings(const QUrl &url) override;
    void apply(const WeatherData &reading);
    void updateCelsiusText();

    QString txt_temp = QStringLiteral("22");
    QString txt_humid = QStringLiteral("0");
    QString txt_wind = QStringLiteral("0");
    QString txt_uv = QStringLiteral("Normal");
    QString txt_pollen = QStringLiteral("Low");
    QString m_celsiusText;
};
