# What the linker cannot see: headers of a higher floor included from a lower one, windows in floors
# that must do without, boxes opened past the one door, and forms that read tables.
cmake_minimum_required(VERSION 3.23)

set(floors platform core catalogue story gallery viewer ui app)
set(faults "")
set(seen 0)
set(forms 0)

# Number of a path below src/, lowest first. The gallery and the viewer share a floor, and neither
# knows the other.
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
      set(included ${CMAKE_MATCH_1})
      floor_of(${included} other)
      if(other GREATER own OR "${source} ${included}" MATCHES "^viewer/[^ ]+ gallery/")
        string(APPEND faults "${source}: includes ${included} of a higher floor\n")
      endif()
      if(NOT has_windows AND included MATCHES "^platform/widgets/")
        string(APPEND faults "${source}: includes ${included}, which opens windows\n")
      endif()
    elseif(NOT has_windows AND line MATCHES
           "<(Q(Widget|Application|Dialog|Label|.*Button|.*Box|.*Layout|MainWindow|(List|Tree|Table|Column|Graphics|AbstractItem)View|Menu))>")
      string(APPEND faults "${source}: includes ${CMAKE_MATCH_1}, which opens windows\n")
    endif()
  endforeach()
  if(source MATCHES "/frm[A-Z][A-Za-z]*\\.(cpp|h)$")
    math(EXPR forms "${forms} + 1")
    file(STRINGS ${SOURCE_DIR}/src/${source} tables
         REGEX "^#include.*(core/AlbumSets\\.h|platform/data/|sqlite3)")
    list(FILTER tables EXCLUDE REGEX "platform/data/DatabaseError\\.h")
    if(tables)
      string(APPEND faults "${source}: a form reads the album's tables itself: ${tables}\n")
    endif()
  endif()
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
       REGEX "^#include \"((core|catalogue|story|gallery|viewer|ui|app)/|support/Album)")
  if(higher)
    string(APPEND faults "tests/${test}: includes what a higher floor holds: ${higher}\n")
  endif()
endforeach()

if(seen LESS 100 OR forms LESS 20)
  message(FATAL_ERROR "only ${seen} include lines and ${forms} files of forms found: the check looks "
                      "in the wrong place")
endif()
if(faults)
  message(FATAL_ERROR "${faults}")
endif()
message(STATUS "${seen} include lines keep to their floors")
