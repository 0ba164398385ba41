// The material database and the users' files.

#include "cfg_utilities/cfg_utilitys.h"
#include "setup/material_database.h"
#include "setup/user_files.h"

int cfg_utilitys::checkMaterialDatabase(RunMode mode)
{
    return MaterialDatabase(context()).check(mode);
}

void cfg_utilitys::removeOldFiles(OldFiles treatment)
{
    if (treatment == OldFiles::Keep)
        return;
    UserFiles(context()).removeOldFiles();
    m_log.close();
    if (m_state.silent)
        UserFiles(context()).removeLog();
}

void cfg_utilitys::resetSorvane(RunMode mode)
{
    UserFiles(context()).resetSorvane(mode);
}
