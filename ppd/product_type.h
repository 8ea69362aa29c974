#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

/// One known pattern: the options that a product of the type offers.
struct ProductTypeList {
    const char *const *keys; ///< ended by null; null itself ends a table of rows
    int type;                ///< item of the plug-in type list, from 1
};

// The options by which products are told apart, and those of each type, each list ended by null.
extern const char *const *const arrayAllKeys;
extern const char *const *const arrayType00_1Keys;
extern const char *const *const arrayType00_2Keys;
extern const char *const *const arrayType02Keys;
extern const char *const *const arrayType03Keys;
/// The types of this panel.
extern const ProductTypeList graphicsPTList[];

/// Works out the product type from the options that turned out to be usable.
///
/// Each control reports its option once; the reports must then equal a known pattern in both
/// directions, one option more is as wrong as one less. Shared by all panels of the process, one
/// after the other: Init(), the reports, RunCheck().
class CPPDChecker {
public:
    using Pattern = std::map<const std::string, bool>;

    /// The checker of this panel's types, made when the module is loaded.
    static CPPDChecker *Instance();

    /// @param allKeys  the options that are reported, ended by null
    /// @param list     the known patterns, ended by a row without keys
    CPPDChecker(const char *const *allKeys, const ProductTypeList *list);
    /// Forgets the reports and the result.
    void Init();
    /// Reports an option. One that isn't among the checked is ignored.
    /// @return true
    bool AddCheck(const char *keyword, bool usable);
    /// Compares the reports with the patterns.
    /// @return true with productType set; false, with productType as it was, when no pattern
    /// matches
    bool RunCheck();

    Pattern checks;                             ///< what was reported
    std::vector<std::pair<int, Pattern>> types; ///< the known patterns, in the order of the rows
    int productType = -1;                       ///< -1 without a result
};
