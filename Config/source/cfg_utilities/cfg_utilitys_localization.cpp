// The localisation tool of the run.

#include "cfg_utilities/cfg_utilitys.h"
#include "localization/util_localization_tool.h"

void cfg_utilitys::initLocalizationTool()
{
    if (!m_localizationTool)
        m_localizationTool = std::make_unique<util::util_localization_tool>(context());
}
