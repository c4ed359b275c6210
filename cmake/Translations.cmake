# lumenark_translations(target FILE.ts ...)
# Compiles translations and puts them inside the program, where it finds them without a folder.
find_program(LUPDATE lupdate HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
find_program(LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)

function(lumenark_translations target)
  set(folder ${CMAKE_BINARY_DIR}/translations)
  file(MAKE_DIRECTORY ${folder})
  foreach(source IN LISTS ARGN)
    get_filename_component(name ${source} NAME_WE)
    add_custom_command(OUTPUT ${folder}/${name}.qm
      COMMAND ${LRELEASE} -silent ${source} -qm ${folder}/${name}.qm
      DEPENDS ${source})
    list(APPEND compiled ${folder}/${name}.qm)
  endforeach()
  qt_add_resources(${target} translations PREFIX /translations BASE ${folder} FILES ${compiled})
endfunction()

# Takes the texts of the sources over into the translations: new ones come as unfinished. English has
# only the forms of counted texts.
file(GLOB translations ${CMAKE_SOURCE_DIR}/resources/translations/*.ts)
list(FILTER translations EXCLUDE REGEX "_en\\.ts$")
add_custom_target(update_translations
  COMMAND ${LUPDATE} -no-obsolete -locations none ${CMAKE_SOURCE_DIR}/src -ts ${translations}
  COMMAND ${LUPDATE} -no-obsolete -pluralonly -locations none ${CMAKE_SOURCE_DIR}/src
    -ts ${CMAKE_SOURCE_DIR}/resources/translations/lumenark_en.ts
  VERBATIM)
