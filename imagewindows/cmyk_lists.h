#pragma once

#include "imagewindows/main_list_mirror.h"

#include <vector>

/// What the choice "None" of the CMYK correction disables: the target paper list and its title.
extern const CtrlTag cmykcolorcorrectionConstrain[];

/// The CMYK correction list of the image adjustment windows.
class CMYKCorrectionListCtrlIAKRV : public MainListMirror<GPPDListCtrlKRV> {
public:
    /// Puts the target paper's row into the disable table at the place that "None" has in this PPD.
    /// The table is the list's own, as long as the list has rows.
    /// @return false without a disable table to extend, else the base class's result
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;

protected:
    PPDPopupControlKRVImageOptions *mainList(const ControlPanel &panel) const override;

private:
    const CtrlConstrainInfo *m_given = nullptr; ///< the record that the creation was given
    std::vector<CtrlTagList> m_rows;
    CtrlConstrainTable m_table;
    CtrlConstrainInfo m_constrain;
};

/// The target paper list of the image adjustment windows.
class CMYKTargetMediaListCtrlIAKRV : public GPPDListCtrlKRV {
public:
    /// @return whether the list isn't hidden, the advanced setting is on and the main panel's CMYK
    ///         correction is another than "None"; being disabled plays no part
    bool ToGetSummaryText() override;
};
