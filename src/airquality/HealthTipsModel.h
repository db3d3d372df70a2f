// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>

// The five health tips, for the dashboard's short cards and the tips screen's
// recommendations alike, so the two never drift apart. Each row names its
// artwork ("indoors" is images/indoors.svg), its two titles, which differ in
// punctuation only, and its short and long texts.
class HealthTipsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { ImageRole = Qt::UserRole + 1, TitleRole, ShortTextRole, RecommendationTitleRole, LongTextRole };

    explicit HealthTipsModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
};
