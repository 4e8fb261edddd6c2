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

# The linker of debug builds, where there is one that is faster.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold RAVEL_HAS_GOLD)
if(RAVEL_HAS_GOLD AND CMAKE_BUILD_TYPE STREQUAL Debug)
  add_link_options(-fuse-ld=gold)
endif()

# A compiler cache finds more of what it has compiled before without them.
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES ccache)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
# What most sources include, compiled once for all targets of a kind. Few headers: each costs every
# source that does not need it.
set(ravel_core_headers <algorithm> <functional> <memory> <QByteArray> <QDir> <QFile> <QFileInfo>
  <QHash> <QList> <QMap> <QObject> <QPointer> <QRegularExpression> <QSharedPointer> <QString>
  <QStringList> <QUrl> <QVariant> <QVector>)
set(ravel_network_headers ${ravel_core_headers} <QAuthenticator> <QJsonArray> <QJsonObject>
  <QNetworkProxy> <QNetworkReply> <QSslError>)
set(ravel_ui_headers ${ravel_network_headers} <QApplication> <QDialog> <QLabel> <QPainter>
  <QPushButton> <QTableWidget> <QTextEdit> <QVBoxLayout>)

function(ravel_target_defaults target)
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON AUTORCC ON POSITION_INDEPENDENT_CODE ON CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# ravel_add_component(<folder> SOURCES ... [LINK ...] [PRIVATE_LINK ...] [HEADERS ... | HEADERS_OF ...])
# One folder of the library as objects; LINK is what its headers need, and so what its users get.
# HEADERS are precompiled, or taken from another folder that has done so.
function(ravel_add_component name)
  cmake_parse_arguments(ARG "" "HEADERS_OF" "SOURCES;LINK;PRIVATE_LINK;HEADERS" ${ARGN})
  add_library(ravel_${name} OBJECT ${ARG_SOURCES})
  add_library(Ravel::${name} ALIAS ravel_${name})
  ravel_target_defaults(ravel_${name})
  # The host's own framework before the bundled one, whose headers lie in the source tree.
  target_include_directories(ravel_${name} PUBLIC ${Plume_INCLUDE_DIR} ${PROJECT_SOURCE_DIR})
  target_link_libraries(ravel_${name} PUBLIC ${ARG_LINK} PRIVATE ravel_flags ${ARG_PRIVATE_LINK})
  if(ARG_HEADERS_OF)
    target_precompile_headers(ravel_${name} REUSE_FROM ravel_${ARG_HEADERS_OF})
  else()
    target_precompile_headers(ravel_${name} PRIVATE ${ARG_HEADERS})
  endif()
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
