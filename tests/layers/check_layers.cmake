# What the linker cannot see: headers of a higher floor included from a lower one, windows in floors
# that must do without, and boxes opened past the one door.
cmake_minimum_required(VERSION 3.23)

set(floors platform core catalogue story viewer ui app)
set(faults "")
set(seen 0)

# Floors of a path below src/, lowest first.
function(floor_of path result)
  string(REGEX REPLACE "/.*" "" top "${path}")
  list(FIND floors "${top}" number)
  set(${result} ${number} PARENT_SCOPE)
endfunction()

file(GLOB_RECURSE sources RELATIVE ${SOURCE_DIR}/src ${SOURCE_DIR}/src/*.h ${SOURCE_DIR}/src/*.cpp)
foreach(source IN LISTS sources)
  floor_of(${source} own)
  if(own LESS 0)
    string(APPEND faults "${source}: lies on no floor\n")
    continue()
  endif()
  set(has_windows OFF)
  if(own GREATER 1 OR source MATCHES "^platform/widgets/")
    set(has_windows ON)
  endif()
  file(STRINGS ${SOURCE_DIR}/src/${source} includes REGEX "^#include")
  foreach(line IN LISTS includes)
    math(EXPR seen "${seen} + 1")
    if(line MATCHES "\"([a-z]+/[^\"]+)\"")
      floor_of(${CMAKE_MATCH_1} other)
      if(other GREATER own)
        string(APPEND faults "${source}: includes ${CMAKE_MATCH_1} of a higher floor\n")
      endif()
      if(NOT has_windows AND CMAKE_MATCH_1 MATCHES "^platform/widgets/")
        string(APPEND faults "${source}: includes ${CMAKE_MATCH_1}, which opens windows\n")
      endif()
    elseif(NOT has_windows AND line MATCHES
           "<(Q(Widget|Application|Dialog|Label|.*Button|.*Box|.*Layout|MainWindow|(List|Tree|Table|Column|Graphics|AbstractItem)View|Menu))>")
      string(APPEND faults "${source}: includes ${CMAKE_MATCH_1}, which opens windows\n")
    endif()
  endforeach()
  if(NOT source MATCHES "^platform/widgets/.*\\.cpp$")
    file(STRINGS ${SOURCE_DIR}/src/${source} box_classes
         REGEX "^#include.*([<\"/](QMessageBox|QInputDialog|QFileDialog|QtWidgets)[>\"]|q(messagebox|inputdialog|filedialog)\\.h)")
    if(box_classes)
      string(APPEND faults "${source}: includes boxes past the dialogs' door: ${box_classes}\n")
    endif()
  endif()
  file(STRINGS ${SOURCE_DIR}/src/${source} boxes
       REGEX "Q(MessageBox|InputDialog|FileDialog)::(information|warning|critical|question|get)")
  if(boxes)
    string(APPEND faults "${source}: opens a box past the dialogs' door: ${boxes}\n")
  endif()
endforeach()

# The lowest floor's tests, and what they share, know none but that floor.
file(GLOB_RECURSE tests RELATIVE ${SOURCE_DIR}/tests ${SOURCE_DIR}/tests/platform/*.h
     ${SOURCE_DIR}/tests/platform/*.cpp)
foreach(test IN LISTS tests)
  file(STRINGS ${SOURCE_DIR}/tests/${test} higher
       REGEX "^#include \"((core|catalogue|story|viewer|ui|app)/|support/Album)")
  if(higher)
    string(APPEND faults "tests/${test}: includes what a higher floor holds: ${higher}\n")
  endif()
endforeach()

if(seen LESS 100)
  message(FATAL_ERROR "only ${seen} include lines found: the check looks in the wrong place")
endif()
if(faults)
  message(FATAL_ERROR "${faults}")
endif()
message(STATUS "${seen} include lines keep to their floors")
