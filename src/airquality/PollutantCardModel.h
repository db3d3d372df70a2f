// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// One pollutant's reading on the tips screen: its text with the unit, and
// where it falls on the card's scale of 0 to 600 mg/m3.
class PollutantCardModel : public QObject
{
    Q_OBJECT
    // The reading as the backend sent it.
    Q_PROPERTY(QString reading READ reading WRITE setReading NOTIFY readingChanged)
    Q_PROPERTY(QString value READ value NOTIFY readingChanged)
    // The reading as a number, 0 for a text that is not one. Every card calls
    // it txt_co, whichever gas it shows.
    Q_PROPERTY(double txt_co READ txt_co NOTIFY readingChanged)
    Q_PROPERTY(double markerX READ markerX NOTIFY readingChanged)
    Q_PROPERTY(double scaleWidth READ scaleWidth CONSTANT)

public:
    explicit PollutantCardModel(QObject *parent = nullptr);

    QString reading() const { return m_reading; }
    void setReading(const QString &reading);
    QString value() const { return m_reading + QStringLiteral(" mg/m3"); }
    double txt_co() const { return m_concentration; }
    // The marker's offset along a scale scaleWidth() long, clamped to its ends.
    double markerX() const;
    static constexpr double scaleWidth() { return 300; }

Q_SIGNALS:
    void readingChanged();

private:
    QString m_reading;
    double m_concentration = 0;
};
