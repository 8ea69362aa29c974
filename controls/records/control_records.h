#pragma once

#include "controls/records/tags.h"
#include "ppd/input_filter.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// A row of a constraint table: the tags of the controls that depend on a value, in the order in
/// which they are told, ended by null. A null row: no control depends on the value.
using CtrlTagList = const CtrlTag *;

/// One row for each value of the owning control. A list's index is its selected item from 0. A
/// check box or radio button has 0 for off and 1 for on in its disable and hide tables. The update
/// table of every control but a list has one row, 0. An index outside the table is an empty row.
struct CtrlConstrainTable {
    std::span<const CtrlTagList> rows;

    CtrlTagList row(int index) const {
        return index >= 0 && static_cast<size_t>(index) < rows.size()
                   ? rows[static_cast<size_t>(index)]
                   : nullptr;
    }
};

/// What happens to other controls when a control's value changes. Any table may be null.
struct CtrlConstrainInfo {
    const CtrlConstrainTable *disableTable = nullptr; ///< the value's row is disabled
    const CtrlConstrainTable *hideTable = nullptr;    ///< the value's row is hidden
    const CtrlConstrainTable *updateTable = nullptr;  ///< the value's row is told Update
    const CtrlConstrainTable *spareTable = nullptr;   ///< null in every record
};

/// Where a control's value lives outside the program. A null key: not there.
struct CtrlAccessInfo {
    uint32_t accessKind = 0;             ///< zero in every record
    uint32_t accessFlags = 0;            ///< zero in every record
    const char *ticketKey = nullptr;     ///< key in the print settings
    const char *preferenceKey = nullptr; ///< stem of the key in the preferences
};

// The IniData records. startValue states the value that a control is meant to begin with;
// defaultValue is what restoring the defaults and a failed load give, and is written by a control
// that is bound to a PPD option; iniValue is the mark for "no old value" that the constraint walks
// test. The shared tables are constant: each panel works on copies of its own.

struct CheckBoxIniData {
    uint32_t startValue = 0;
    uint32_t defaultValue = 0; ///< 0 off, 1 on
    int32_t iniValue = -1;
    const char *titleKey = nullptr;
};

struct RadioButtonIniData {
    uint32_t startValue = 0;
    uint32_t defaultValue = 0; ///< 0 off, 1 on
    int32_t iniValue = -1;
    const char *titleKey = nullptr;
    const void *extraKey = nullptr; ///< null in every record
};

struct PopupIniData {
    uint32_t startValue = 0;
    uint32_t defaultValue = 0;             ///< the item from 1, 0 for none
    int32_t iniValue = 0;                  ///< -1 for a list with a hide table
    const char *const *menuKeys = nullptr; ///< keys of a static menu, ended by null
};

struct SliderBarIniData {
    int32_t startValue = 0;
    int32_t defaultValue = 0;
    int32_t iniValue = 0;
    int32_t minValue = 0; ///< written from the PPD
    int32_t maxValue = 0; ///< written from the PPD
};

struct LittleArrayIniData {
    int32_t startValue = 0;
    int32_t defaultValue = 0;
    int32_t iniValue = 0;
    int32_t minValue = 0;
    int32_t maxValue = 0;
    int32_t stepValue = 1; ///< 1 in every record
};

struct TextEditIniData {
    char iniText[256] = {};
    char defaultText[256] = {}; ///< UTF-8, ended by a zero byte
    uint32_t minLength = 0;     ///< in characters, as GetStringLength counts
    uint32_t maxLength = 0;     ///< in characters, as GetStringLength counts
};

/// Shapes of a value, for setExternalValueToData.
inline constexpr int32_t kValueTypeText = 0;
inline constexpr int32_t kValueTypeInteger = 2;
