# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
# The languages that there are catalogues in, beside English, which the source texts are in.
set(RAVEL_LANGUAGES ar de es fr he it ja ko nl pl pt_BR ru zh_CN zh_TW)

find_program(LRELEASE NAMES lrelease-qt5 lrelease HINTS /usr/lib/qt5/bin REQUIRED)

# ravel_add_catalogues(<target> <name> <folder>): <folder>/<name>_<code>.ts of every language go into
# the target as ":/translations/<name>_<code>.qm", in a resource called <name>_translations.
function(ravel_add_catalogues target name folder)
  string(REPLACE "-" "_" resource ${name}_translations)
  set(directory ${CMAKE_CURRENT_BINARY_DIR}/translations)
  set(catalogues)
  set(entries)
  foreach(code IN LISTS RAVEL_LANGUAGES)
    set(source ${folder}/${name}_${code}.ts)
    set(catalogue ${directory}/${name}_${code}.qm)
    add_custom_command(OUTPUT ${catalogue} DEPENDS ${source}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${directory}
      COMMAND ${LRELEASE} -silent -nounfinished ${source} -qm ${catalogue})
    list(APPEND catalogues ${catalogue})
    string(APPEND entries "    <file>${name}_${code}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${directory}/${resource}.qrc @ONLY CONTENT
    "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n  <qresource prefix=\"/translations\">\n${entries}  </qresource>\n</RCC>\n")
  set_property(TARGET ${target} APPEND PROPERTY AUTOGEN_TARGET_DEPENDS ${catalogues})
  target_sources(${target} PRIVATE ${directory}/${resource}.qrc)
endfunction()
