// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/PlaceNameFolding.h"

QString foldPlaceName(const QString &name)
{
    // Compatibility decomposition splits accented letters into a base letter
    // and combining marks, and ligatures and full-width forms into plain letters.
    const QString decomposed = name.normalized(QString::NormalizationForm_KD);
    QString folded;
    folded.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.isMark())
            continue;
        // "Saint-Étienne" and "Saint Etienne" are the same search.
        folded.append(c.isPunct() ? QChar(QLatin1Char(' ')) : c);
    }
    return folded.toCaseFolded().simplified();
}
