// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// Advice for the air indoors, following the outdoor air-quality category.
class MainIndoorsViewModel : public QObject
{
    Q_OBJECT
    // The outdoor category as the dashboard header publishes it, "1" to "6".
    Q_PROPERTY(QString outdoorIndex READ outdoorIndex WRITE setOutdoorIndex NOTIFY outdoorIndexChanged)
    Q_PROPERTY(QString advice READ advice NOTIFY outdoorIndexChanged)

public:
    using QObject::QObject;

    QString outdoorIndex() const { return m_outdoorIndex; }
    void setOutdoorIndex(const QString &index);
    QString advice() const { return adviceFor(m_outdoorIndex); }

    // Any other text than a category gets advice that holds whatever the air.
    static QString adviceFor(const QString &outdoorIndex);

Q_SIGNALS:
    void outdoorIndexChanged();

private:
    QString m_outdoorIndex;
};
