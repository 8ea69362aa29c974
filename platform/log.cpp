#include "platform/log.h"

const QLoggingCategory &panelLog() {
    static const QLoggingCategory category("pde.panel");
    return category;
}
