#pragma once

#include <QCoreApplication>

namespace host {

/// Translates the texts of this folder's plain functions, in the context "host".
struct PresetWords {
    Q_DECLARE_TR_FUNCTIONS(host)
};

} // namespace host
