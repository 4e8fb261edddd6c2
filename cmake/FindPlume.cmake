# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
# The host framework that comes with the product's host, as Plume::Core and Plume::Widgets.
# Set Plume_ROOT to where it is installed; its headers are <plume/...>.
find_path(Plume_INCLUDE_DIR plume/PlumeMainWindow.h)
find_library(Plume_CORE_LIBRARY NAMES plume_core plume)
find_library(Plume_WIDGETS_LIBRARY NAMES plume_widgets plume)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Plume REQUIRED_VARS
  Plume_CORE_LIBRARY Plume_WIDGETS_LIBRARY Plume_INCLUDE_DIR)
if(Plume_FOUND AND NOT TARGET Plume::Core)
  add_library(Plume::Core UNKNOWN IMPORTED)
  # Not as system headers, which come last: the bundled ones lie in the source tree.
  set_target_properties(Plume::Core PROPERTIES
    IMPORTED_NO_SYSTEM ON
    IMPORTED_LOCATION ${Plume_CORE_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${Plume_INCLUDE_DIR}
    INTERFACE_LINK_LIBRARIES Qt5::Core)
  add_library(Plume::Widgets UNKNOWN IMPORTED)
  set_target_properties(Plume::Widgets PROPERTIES
    IMPORTED_NO_SYSTEM ON
    IMPORTED_LOCATION ${Plume_WIDGETS_LIBRARY}
    INTERFACE_LINK_LIBRARIES "Plume::Core;Qt5::Widgets")
endif()
