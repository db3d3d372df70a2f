// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/HealthTipsModel.h"

#include <array>

namespace
{
struct HealthTip {
    const char *image;
    const char *title;
    const char *shortText;
    const char *recommendationTitle;
    const char *longText;
};

constexpr std::array<HealthTip, 5> tips { {
    { "indoors", "Stay Indoors", "Stay indoors as much as possible during an air quality alert.", "Stay Indoors",
      "Stay indoors as much as possible during an air quality alert." },
    { "close_window", "Windows and Doors", "Close your windows and doors to keep polluted air out of your home.", "Windows and Doors.",
      "If you must go outside, close your windows and doors to keep polluted air out of your home." },
    { "air_purifier", "Air Purifier", "Running the air purifier continuously helps maintain cleaner air.", "Air Purifier",
      "Running the air purifier continuously helps maintain cleaner air, especially in rooms with pets, smoke, or allergens." },
    { "medical_mask", "Wear a mask", "Choose masks with multiple layers for risky places.", "Wear a mask",
      "For better protection, choose masks with multiple layers or those with an N95/KN95 rating, especially in high-risk areas." },
    { "monitor_health", "Monitor your Health", "Check your temperature, blood pressure, and oxygen levels regularly.", "Monitor your Health",
      "If you have access to a thermometer, blood pressure cuff, or a pulse oximeter, check your temperature, blood pressure, and oxygen levels "
      "regularly." },
} };
} // namespace

HealthTipsModel::HealthTipsModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int HealthTipsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(tips.size());
}

QVariant HealthTipsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const HealthTip &tip = tips[static_cast<std::size_t>(index.row())];
    switch (role) {
    case ImageRole:
        return QString::fromUtf8(tip.image);
    case TitleRole:
        return QString::fromUtf8(tip.title);
    case ShortTextRole:
        return QString::fromUtf8(tip.shortText);
    case RecommendationTitleRole:
        return QString::fromUtf8(tip.recommendationTitle);
    case LongTextRole:
        return QString::fromUtf8(tip.longText);
    default:
        return {};
    }
}

QHash<int, QByteArray> HealthTipsModel::roleNames() const
{
    return { { ImageRole, "image" },
             { TitleRole, "title" },
             { ShortTextRole, "shortText" },
             { RecommendationTitleRole, "recommendationTitle" },
             { LongTextRole, "longText" } };
}
