# Texts and templates: UTF-8 sources, converted to the station's code page. A character that the code page
# lacks fails the build, naming file and line.

# What a station's application folder is filled from at its first start.
set(VIGREL_SHARE_DIR ${CMAKE_BINARY_DIR}/share/vigrel-receiver CACHE INTERNAL "Delivered templates, texts, sounds")

# vigrel_code_page_file(list source target): target, relative to the share folder, made from source.
function(vigrel_code_page_file list source target)
  get_filename_component(folder ${VIGREL_SHARE_DIR}/${target} DIRECTORY)
  add_custom_command(
    OUTPUT ${VIGREL_SHARE_DIR}/${target}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND to-code-page ${source} ${VIGREL_SHARE_DIR}/${target}
    DEPENDS to-code-page ${source}
    COMMENT "Converting ${target}"
    VERBATIM)
  set(${list} ${${list}} ${VIGREL_SHARE_DIR}/${target} PARENT_SCOPE)
endfunction()

# The template of the configuration in each language: one source, in which @mark@ stands for a word of words.cmake. An
# application folder takes one of them as its template, Templates/VigrelReceiver.oni, at its first start.
set(template_source ${CMAKE_CURRENT_SOURCE_DIR}/templates/VigrelReceiver.oni.in)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${template_source})
function(vigrel_word mark)
  set_property(GLOBAL APPEND PROPERTY vigrel_marks ${mark})
  foreach(language word IN ZIP_LISTS vigrel_languages ARGN)
    set_property(GLOBAL PROPERTY vigrel_word_${mark}_${language} "${word}")
  endforeach()
  list(LENGTH ARGN words)
  list(LENGTH vigrel_languages languages)
  if(NOT words EQUAL languages)
    message(FATAL_ERROR "templates/words.cmake: ${mark} has ${words} words for ${languages} languages")
  endif()
endfunction()
include(templates/words.cmake)

# A mark without words, and words without a mark, are slips.
file(READ ${template_source} template_text)
string(REGEX MATCHALL "@[A-Za-z0-9]+@" used_marks "${template_text}")
list(REMOVE_DUPLICATES used_marks)
list(TRANSFORM used_marks REPLACE "@" "")
list(SORT used_marks)
get_property(known_marks GLOBAL PROPERTY vigrel_marks)
list(SORT known_marks)
if(NOT used_marks STREQUAL known_marks)
  message(FATAL_ERROR "Marks of ${template_source}: ${used_marks}\nMarks of templates/words.cmake: ${known_marks}")
endif()

# Made by builds of earlier versions; it would count as a folder's own template.
file(REMOVE ${VIGREL_SHARE_DIR}/Templates/VigrelReceiver.oni)
foreach(language ${vigrel_languages})
  foreach(mark ${known_marks})
    get_property(${mark} GLOBAL PROPERTY vigrel_word_${mark}_${language})
  endforeach()
  set(expanded ${CMAKE_CURRENT_BINARY_DIR}/templates/VigrelReceiver.${language})
  configure_file(${template_source} ${expanded} @ONLY)
  vigrel_code_page_file(template ${expanded} Templates/VigrelReceiver.${language})
endforeach()
file(GLOB text_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/texts/Vigrel_Texts.*)
foreach(source ${text_sources})
  get_filename_component(name ${source} NAME)
  vigrel_code_page_file(texts ${source} ${name})
endforeach()
add_custom_target(vigrel_texts ALL DEPENDS ${template} ${texts})

install(FILES ${template} DESTINATION share/vigrel-receiver/Templates)
install(FILES ${texts} DESTINATION share/vigrel-receiver)
