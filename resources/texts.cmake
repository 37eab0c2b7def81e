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

vigrel_code_page_file(template
  ${CMAKE_CURRENT_SOURCE_DIR}/templates/VigrelReceiver.oni.in Templates/VigrelReceiver.oni)
file(GLOB text_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/texts/Vigrel_Texts.*)
foreach(source ${text_sources})
  get_filename_component(name ${source} NAME)
  vigrel_code_page_file(texts ${source} ${name})
endforeach()
add_custom_target(vigrel_texts ALL DEPENDS ${template} ${texts})

install(FILES ${template} DESTINATION share/vigrel-receiver/Templates)
install(FILES ${texts} DESTINATION share/vigrel-receiver)
