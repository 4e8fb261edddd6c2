# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later

# ravel_register_test(<name> COMMAND ... LABELS <folder> <kind> [TIMEOUT s] [LOCK ...] [FIXTURES ...] [ENVIRONMENT ...])
# runs a command as ctest "<name>", with a HOME of its own. Nothing outside may change meanwhile.
function(ravel_register_test name)
  cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND;LABELS;LOCK;FIXTURES;ENVIRONMENT" ${ARGN})
  string(REGEX REPLACE "^[a-z0-9]+\\." "" class ${name})
  set(home ${CMAKE_CURRENT_BINARY_DIR}/home_${class})
  # Qt closes the runtime directory to others, so it cannot be the home itself.
  file(MAKE_DIRECTORY ${home}/run)
  file(CHMOD ${home}/run PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  # Open to all: tests run parts of themselves as an ordinary user below it.
  file(CHMOD ${home} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  add_test(NAME ${name} COMMAND ${ARG_COMMAND})
  set_tests_properties(${name} PROPERTIES
    LABELS "${ARG_LABELS}" RESOURCE_LOCK "${ARG_LOCK}" TIMEOUT "${ARG_TIMEOUT}"
    FIXTURES_REQUIRED "outside;${ARG_FIXTURES}"
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/.config;XDG_CACHE_HOME=${home}/.cache;XDG_DATA_HOME=${home}/.local/share;XDG_RUNTIME_DIR=${home}/run;TMPDIR=${home};http_proxy=;https_proxy=;ftp_proxy=;HTTP_PROXY=;HTTPS_PROXY=;no_proxy=;${ARG_ENVIRONMENT}")
endfunction()

# ravel_test_headers(<name> <library> <header>...): headers that test programs share, compiled once.
# They are those of a program, which is compiled as programs are.
function(ravel_test_headers name library)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "int main() {}\n")
  add_executable(${name} ${source})
  set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
  target_link_libraries(${name} PRIVATE ${library} Qt5::Test ravel_flags)
  target_compile_definitions(${name} PRIVATE QT_FORCE_ASSERTS)
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()
ravel_test_headers(ravel_engine_test_headers "Qt5::Network;Qt5::Xml"
  ${ravel_network_headers} <QCoreApplication> <QProcess> <QSignalSpy> <QTcpServer> <QTcpSocket>
  <QTemporaryDir> <QTest> <QTimer>)
ravel_test_headers(ravel_ui_test_headers "Qt5::Network;Qt5::Xml;Qt5::Widgets"
  ${ravel_ui_headers} <QProcess> <QSignalSpy> <QTcpServer> <QTcpSocket> <QTemporaryDir> <QTest>
  <QTimer>)

# ravel_add_test(<Class> [ENGINE | HOST] [SOURCES ...] [LINK ...] LABELS <folder> <kind> [...])
# builds tst_<Class>.cpp and registers it as "<folder>.<Class>" with the arguments of
# ravel_register_test(). ENGINE links the engine alone: such a test cannot use a widget. HOST links the
# host's window and the library as a host sees it.
function(ravel_add_test name)
  cmake_parse_arguments(ARG "ENGINE;HOST" "TIMEOUT" "SOURCES;LINK;LABELS;LOCK;FIXTURES;ENVIRONMENT" ${ARGN})
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
  add_executable(tst_${name} tst_${name}.cpp ${ARG_SOURCES})
  # Not AUTOMOC, whose steps take longer than the one that is needed.
  qt5_generate_moc(tst_${name}.cpp tst_${name}.moc)
  target_sources(tst_${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/tst_${name}.moc)
  set_target_properties(tst_${name} PROPERTIES CXX_EXTENSIONS OFF)
  target_include_directories(tst_${name} PRIVATE ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_BINARY_DIR})
  if(ARG_ENGINE)
    target_link_libraries(tst_${name} PRIVATE ravel_test_support Ravel::engine)
  elseif(ARG_HOST)
    target_link_libraries(tst_${name} PRIVATE ravel_ui_test_support ravel_test_support ravel_host_window)
  else()
    target_link_libraries(tst_${name} PRIVATE ravel_ui_test_support ravel_test_support Ravel::testable)
  endif()
  if(NOT ARG_HOST)
    target_sources(tst_${name} PRIVATE $<TARGET_OBJECTS:ravel_test_log>)
  endif()
  target_link_libraries(tst_${name} PRIVATE Qt5::Test ${ARG_LINK} ravel_flags)
  if(ARG_ENGINE)
    target_precompile_headers(tst_${name} REUSE_FROM ravel_engine_test_headers)
  else()
    target_precompile_headers(tst_${name} REUSE_FROM ravel_ui_test_headers)
  endif()
  target_compile_definitions(tst_${name} PRIVATE QT_FORCE_ASSERTS RAVEL_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
  ravel_register_test(${folder}.${name} COMMAND tst_${name} LABELS ${ARG_LABELS}
    TIMEOUT "${ARG_TIMEOUT}" LOCK ${ARG_LOCK} FIXTURES ${ARG_FIXTURES} ENVIRONMENT ${ARG_ENVIRONMENT})
endfunction()
