// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ProfileMedicalDetailsUrl.h"

ProfileMedicalDetailsUrl::ProfileMedicalDetailsUrl(QObject *parent)
    : RecordListFetcher(BackendScript::CheckMedicalDetails, parent)
{
}
