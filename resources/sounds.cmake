# The sounds are composed at build time.
set(sound_folder ${VIGREL_SHARE_DIR}/Sounds)
set(sounds ${sound_folder}/alarm.wav ${sound_folder}/warning.wav ${sound_folder}/notice.wav)
add_custom_command(
  OUTPUT ${sounds}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${sound_folder}
  COMMAND make-sounds ${sound_folder}
  DEPENDS make-sounds
  COMMENT "Composing sounds"
  VERBATIM)
add_custom_target(vigrel_sounds ALL DEPENDS ${sounds})
install(FILES ${sounds} DESTINATION share/vigrel-receiver/Sounds)
