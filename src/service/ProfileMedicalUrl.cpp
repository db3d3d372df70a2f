// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ProfileMedicalUrl.h"

ProfileMedicalUrl::ProfileMedicalUrl(QObject *parent)
    : RecordListFetcher(BackendScript::CheckMedical, parent)
{
}
