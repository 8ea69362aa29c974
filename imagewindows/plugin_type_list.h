#pragma once

#include "controls/popup_family.h"

/// The hidden list that holds the queue's product type, from which others hide what it lacks.
class PluginTypeListCtrlKRV : public PopupControlKRVImageOptions {
public:
    /// Makes a type of at least 1 the default of the record, which the panel's windows share.
    /// @return true
    bool SetPluginType(int32_t type);
};
