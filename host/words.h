#pragma once

#include <QCoreApplication>

namespace host {

/// Translates the texts of plain functions, in the context "host".
struct HostWords {
    Q_DECLARE_TR_FUNCTIONS(host)
};

} // namespace host
