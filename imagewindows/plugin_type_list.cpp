#include "imagewindows/plugin_type_list.h"

bool PluginTypeListCtrlKRV::SetPluginType(int32_t type) {
    if (type >= 1 && listctrlIniDataPtr)
        listctrlIniDataPtr->defaultValue = static_cast<uint32_t>(type);
    return true;
}
