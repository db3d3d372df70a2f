// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainWeatherViewModel.h"

#include "common/Console.h"
#include "common/DoubleText.h"
#include "location/LoggingProvider.h"
#include "records/WeatherData.h"

#include <QLocale>

#include <cmath>

MainWeatherViewModel::MainWeatherViewModel(QObject *parent)
    : PositionedPanel(BackendScript::Weather, new LocationManagerFunss, parent)
{
    updateCelsiusText();
}

std::optional<QString> MainWeatherViewModel::roundedCelsiusFor(const QString &kelvin)
{
    bool ok = false;
    const double reading = QLocale::c().toDouble(kelvin, &ok);
    if (!ok || !std::isfinite(reading))
        return std::nullopt;
    // Whole degrees on purpose; the tenth is always ".0".
    return doubleText(std::round((reading - 273.15) * 10 / 10));
}

std::optional<QString> MainWeatherViewModel::celsiusTextFor(const QString &kelvin)
{
    const std::optional<QString> rounded = roundedCelsiusFor(kelvin);
    return rounded ? std::optional(*rounded + QStringLiteral("°C")) : std::nullopt;
}

void MainWeatherViewModel::updateCelsiusText()
{
    const std::optional<QString> text = celsiusTextFor(txt_temp);
    if (text)
        m_celsiusText = *text;
    else
        Console::printLine(QStringLiteral("Temperature is not a number, keeping the last one: ") + txt_temp);
}

void MainWeatherViewModel::requestReadings(const QUrl &url)
{
    fetchFirstRecord<WeatherData>(url, [this](const WeatherData &reading) { apply(reading); });
}

void MainWeatherViewModel::apply(const WeatherData &reading)
{
    txt_temp = reading.temp;
    txt_humid = reading.humid;
    txt_wind = reading.wind;
    txt_uv = reading.uv;
    txt_pollen = reading.pollen;
    updateCelsiusText();
    Q_EMIT readingsChanged();
}
