# The floors of the house: a library may link libraries of its own floor's ground (0) or of floors
# below its own, never one above. tests/layers checks the same for #include lines.

# Compiled once, used by every library and test: Qt and the standard headers are most of the text
# that the compiler would otherwise read again for each file.
function(lumenark_precompiled name)
  set(stub ${CMAKE_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${stub} CONTENT "// Holds a precompiled header.\n")
  add_library(${name} OBJECT ${stub})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  target_link_libraries(${name} PRIVATE lumenark_flags ${ARGN})
endfunction()

lumenark_precompiled(lumenark_pch_core Qt6::Core)
target_precompile_headers(lumenark_pch_core PRIVATE
  <QByteArray> <QCoreApplication> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList> <QVariant>
  <functional> <memory> <optional> <string> <vector>)

lumenark_precompiled(lumenark_pch_widgets Qt6::Widgets)
target_precompile_headers(lumenark_pch_widgets PRIVATE
  <QApplication> <QBoxLayout> <QDialog> <QKeyEvent> <QLabel> <QListWidget> <QMainWindow>
  <QPainter> <QPushButton> <QTimer> <QDir> <QFile> <QFileInfo> <QHash> <QString> <QStringList>
  <functional> <memory> <optional> <vector>)

# lumenark_library(NAME name FLOOR n SOURCES ... [LINKS ...] [WIDGETS])
# Makes a static library. LINKS names other libraries; those of ours must lie on a lower floor (or
# all on floor 0). WIDGETS: the library opens windows; floors 0 and 1 must do without, except
# platform_widgets.
function(lumenark_library)
  cmake_parse_arguments(ARG "WIDGETS" "NAME;FLOOR" "SOURCES;LINKS" ${ARGN})
  add_library(${ARG_NAME} STATIC ${ARG_SOURCES})
  set_target_properties(${ARG_NAME} PROPERTIES LUMENARK_FLOOR ${ARG_FLOOR})
  foreach(lower IN LISTS ARG_LINKS)
    if(TARGET ${lower})
      get_target_property(floor ${lower} LUMENARK_FLOOR)
      if(NOT floor STREQUAL "floor-NOTFOUND" AND NOT floor LESS ARG_FLOOR
         AND NOT (floor EQUAL 0 AND ARG_FLOOR EQUAL 0))
        message(FATAL_ERROR "${ARG_NAME} (floor ${ARG_FLOOR}) must not link ${lower} (floor ${floor})")
      endif()
    endif()
  endforeach()
  target_link_libraries(${ARG_NAME} PUBLIC Qt6::Core ${ARG_LINKS} PRIVATE lumenark_flags)
  if(ARG_WIDGETS)
    target_link_libraries(${ARG_NAME} PUBLIC Qt6::Widgets)
    target_precompile_headers(${ARG_NAME} REUSE_FROM lumenark_pch_widgets)
  else()
    target_precompile_headers(${ARG_NAME} REUSE_FROM lumenark_pch_core)
  endif()
endfunction()
