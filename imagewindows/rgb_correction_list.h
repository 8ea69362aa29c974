#pragma once

#include "imagewindows/main_list_mirror.h"

/// What both RGB correction lists share: the choice "None" is a row, but no item of the menu.
///
/// Item i of the menu is row i + 1, wherever "None" stands; the value in the blocks is thus the
/// row's index, and 0 is row 0, which has no item: nothing is selected. Without a row "None" it is
/// still row 0 that has no item.
class RGBCorrectionRowList : public GPPDListCtrlKRV {
public:
    /// Menu := rows but "None". With a choice "Perceptual" the item behind "None" is selected, and
    /// the index of "None" becomes the record's default, which the PPD's own replaces unless it is
    /// row 0.
    void ReInitializeMenu() override;
    /// Enables and disables item i by row i + 1.
    int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) override;
    int32_t GetIndexByControl(const int32_t *item) const override;
    /// Data block := the row's index. @return false for an index below 1 or above the row count
    bool ConvertFromPresetIndex(int32_t index) override;
    /// Takes row 0 too, as value 0, so that a marked "None" is saved as "None" again.
    bool GetValueToPreset() override;
    /// @param value  receives the row's index, 0 without one
    bool GetDefaultValueFromPPD(const QString &choice, int32_t *value) override;
    /// Marks the committed row, row 0 for value 0.
    bool RestorePPD(ppd_file_t *ppd) override;
    /// Updates the controls of the table's first row, unless nothing is selected or changed.
    int32_t DoControlUpdateConstrain() override;

protected:
    /// The item that a conflicted row disables while the menu is made.
    /// @param item  the row's own item, -1 for none
    virtual int32_t conflictItem(int32_t row, int32_t item) const = 0;

private:
    bool m_presetIsRow0 = false;
};

/// The RGB correction list of the main panel.
class RGBCorrectionListCtrlKRV : public RGBCorrectionRowList {
public:
    /// Tells the host the choice that the list shows, changed or not; when the job is printed
    /// without the advanced setting or without colour "None" instead, if the option has it.
    /// @return the host's answer; false without block, panel or such a choice
    bool SetValueToTicket(PMPrintSettings settings, bool withParam) override;

protected:
    /// A row disables its own item; "None" has none.
    int32_t conflictItem(int32_t row, int32_t item) const override;
};

/// The RGB correction list of the image adjustment windows.
class RGBCorrectionListCtrlIAKRV : public MainListMirror<RGBCorrectionRowList> {
protected:
    /// Row i disables item i - 1, the row of "None" too: the item of another row in front of it.
    int32_t conflictItem(int32_t row, int32_t item) const override;
    PPDPopupControlKRVImageOptions *mainList(const ControlPanel &panel) const override;
};
