#pragma once

#include <QtGlobal>

// The platform library is shared by the host and the panels that it loads, so that a view, a bundle
// or a print setting is the same thing on both sides.
#ifdef PDE_PLATFORM_BUILD
#define PDE_PLATFORM_EXPORT Q_DECL_EXPORT
#else
#define PDE_PLATFORM_EXPORT Q_DECL_IMPORT
#endif
