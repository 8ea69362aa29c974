#pragma once

#include <QtGlobal>

#ifdef PDE_QT_BUILD
#define PDE_QT_EXPORT Q_DECL_EXPORT
#else
#define PDE_QT_EXPORT Q_DECL_IMPORT
#endif
