# lumenark_test(NAME name SOURCES ... LINKS ...)
# One program per unit, run by CTest without a display, under a time limit. It lies in the program's
# folder, where the album template is.
function(lumenark_test)
  cmake_parse_arguments(ARG "" "NAME" "SOURCES;LINKS" ${ARGN})
  add_executable(${ARG_NAME} ${ARG_SOURCES})
  target_link_libraries(${ARG_NAME} PRIVATE lumenark_flags Qt6::Test Qt6::Widgets ${ARG_LINKS})
  target_precompile_headers(${ARG_NAME} REUSE_FROM lumenark_pch_widgets)
  add_dependencies(${ARG_NAME} album_template)
  add_test(NAME ${ARG_NAME} COMMAND ${ARG_NAME})
  set_tests_properties(${ARG_NAME} PROPERTIES
    # Only for a program that is skipped as a whole, at its beginning: a match counts for more than
    # a failure. So what may be missing has a test program of its own.
    SKIP_REGULAR_EXPRESSION "SKIP   : [A-Za-z]+::initTestCase"
    TIMEOUT 300
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QPA_PLATFORMTHEME=;LC_ALL=C.UTF-8")
endfunction()
