# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
option(RAVEL_WERROR "warnings are errors" OFF)
set(RAVEL_SANITIZERS "" CACHE STRING "comma separated -fsanitize list")

# Compiler flags of everything that is ours.
add_library(ravel_flags INTERFACE)
target_compile_features(ravel_flags INTERFACE cxx_std_17)
target_compile_options(ravel_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wcast-align -Wformat-security -Wnon-virtual-dtor -Woverloaded-virtual
  -Wsuggest-override -Wundef -Wvla -Wzero-as-null-pointer-constant
  $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>
  $<$<BOOL:${RAVEL_WERROR}>:-Werror>)
target_compile_definitions(ravel_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS
  _FILE_OFFSET_BITS=64)
if(RAVEL_SANITIZERS)
  target_compile_options(ravel_flags INTERFACE -fsanitize=${RAVEL_SANITIZERS} -fno-omit-frame-pointer)
  target_link_options(ravel_flags INTERFACE -fsanitize=${RAVEL_SANITIZERS})
endif()

function(ravel_target_defaults target)
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON AUTORCC ON POSITION_INDEPENDENT_CODE ON CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# ravel_add_component(<folder> SOURCES ... [LINK ...] [PRIVATE_LINK ...])
# One folder of the library as objects; LINK is what its headers need, and so what its users get.
function(ravel_add_component name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  add_library(ravel_${name} OBJECT ${ARG_SOURCES})
  add_library(Ravel::${name} ALIAS ravel_${name})
  ravel_target_defaults(ravel_${name})
  # The host's own framework before the bundled one, whose headers lie in the source tree.
  target_include_directories(ravel_${name} PUBLIC ${Plume_INCLUDE_DIR} ${PROJECT_SOURCE_DIR})
  target_link_libraries(ravel_${name} PUBLIC ${ARG_LINK} PRIVATE ravel_flags ${ARG_PRIVATE_LINK})
endfunction()

# ravel_bundle(<target> FOLDERS ... LINK ...): the objects of these folders as one library.
function(ravel_bundle target)
  cmake_parse_arguments(ARG "" "" "FOLDERS;LINK" ${ARGN})
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON CXX_EXTENSIONS OFF)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
  foreach(folder IN LISTS ARG_FOLDERS)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:ravel_${folder}>)
  endforeach()
  target_link_libraries(${target} PUBLIC ${ARG_LINK} PRIVATE ravel_flags)
endfunction()
