# The editor's words: its sources are in English, translations/definitions_LL.ts has the other languages. They travel
# in the program, ":/translations/definitions_sv.qm" and the like, as the pictures do (icons.cmake says how).
#
# What the sources have anew comes into the files by
#   cmake --build --preset dev --target update_translations
# as unfinished entries, which a test refuses until each has its words.
get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmake} -query QT_INSTALL_BINS OUTPUT_VARIABLE qt_programs OUTPUT_STRIP_TRAILING_WHITESPACE)
find_program(VIGREL_LRELEASE NAMES lrelease HINTS ${qt_programs} REQUIRED)
find_program(VIGREL_LUPDATE NAMES lupdate HINTS ${qt_programs} REQUIRED)

set(translations_folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
file(GLOB translations CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/translations/*.ts)
foreach(source ${translations})
  get_filename_component(name ${source} NAME_WE)
  add_custom_command(
    OUTPUT ${translations_folder}/${name}.qm
    COMMAND ${VIGREL_LRELEASE} -silent ${source} -qm ${translations_folder}/${name}.qm
    DEPENDS ${source}
    VERBATIM)
  string(APPEND translated_files "    <file>${name}.qm</file>\n")
endforeach()
file(CONFIGURE OUTPUT ${translations_folder}/translations.qrc
  CONTENT "<RCC>\n  <qresource prefix=\"/translations\">\n${translated_files}  </qresource>\n</RCC>\n")
qt_add_resources(vigrel_translation_source ${translations_folder}/translations.qrc)
add_library(vigrel_translation_object OBJECT ${vigrel_translation_source})
target_link_libraries(vigrel_translation_object PRIVATE Qt6::Core)
add_library(vigrel_translations INTERFACE)
target_link_libraries(vigrel_translations INTERFACE $<TARGET_OBJECTS:vigrel_translation_object> Qt6::Core)

add_custom_target(update_translations
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/translations/update.sh ${VIGREL_LUPDATE}
  VERBATIM)
