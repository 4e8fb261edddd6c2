// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

#if defined(plume_core_EXPORTS) || defined(plume_widgets_EXPORTS)
#define PLUME_EXPORT Q_DECL_EXPORT
#else
#define PLUME_EXPORT Q_DECL_IMPORT
#endif
