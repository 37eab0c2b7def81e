# vigrel_bundle(root qmake): puts the toolkit and what else a desktop doesn't have of its own into root/lib and
# root/plugins, so that the programs in root run where the packages of the toolkit are not installed.
#
# What is named here is bundled; everything else (C library, graphics drivers, X, fonts, sound server, print system)
# must be the desktop's own, since it has to fit the machine.
set(vigrel_bundled
  "^libQt6" "^libicu" "^libdouble-conversion" "^libb2\\." "^libgomp\\." "^libmd4c" "^libpcre2-16" "^libproxy"
  "^libxcb-" "^libxkbcommon" "^libts\\." "^libhidapi" "^libsndfile" "^libFLAC" "^libvorbis" "^libogg" "^libopus"
  "^libmpg123" "^libmp3lame")
set(vigrel_plugins
  platforms/libqxcb.so platforms/libqoffscreen.so xcbglintegrations/libqxcb-glx-integration.so
  xcbglintegrations/libqxcb-egl-integration.so iconengines/libqsvgicon.so imageformats/libqsvg.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so)

function(vigrel_qmake_query variable qmake key)
  execute_process(COMMAND ${qmake} -query ${key} OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
  set(${variable} ${answer} PARENT_SCOPE)
endfunction()

# The terms under which a bundled library may be passed on lie beside it.
function(vigrel_copy_licence library folder)
  execute_process(COMMAND dpkg-query --search ${library} OUTPUT_VARIABLE answer ERROR_QUIET)
  if(answer MATCHES "^([^:]+):")
    configure_file(/usr/share/doc/${CMAKE_MATCH_1}/copyright ${folder}/${CMAKE_MATCH_1}.txt COPYONLY)
  endif()
endfunction()

function(vigrel_bundle root qmake)
  vigrel_qmake_query(plugin_folder ${qmake} QT_INSTALL_PLUGINS)
  vigrel_qmake_query(translation_folder ${qmake} QT_INSTALL_TRANSLATIONS)
  foreach(plugin ${vigrel_plugins})
    get_filename_component(folder ${plugin} DIRECTORY)
    file(COPY ${plugin_folder}/${plugin} DESTINATION ${root}/plugins/${folder})
    list(APPEND modules ${plugin_folder}/${plugin})
  endforeach()
  file(GLOB translations ${translation_folder}/qtbase_*.qm)
  list(FILTER translations INCLUDE REGEX "_(da|de|en|fi|nb|nn|sv)\\.qm$")
  file(COPY ${translations} DESTINATION ${root}/translations)

  file(GLOB programs ${root}/vigrel-*)
  file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programs} MODULES ${modules}
    RESOLVED_DEPENDENCIES_VAR libraries PRE_INCLUDE_REGEXES ${vigrel_bundled} PRE_EXCLUDE_REGEXES ".*")
  foreach(library ${libraries})
    get_filename_component(name ${library} NAME)
    file(REAL_PATH ${library} real)
    configure_file(${real} ${root}/lib/${name} COPYONLY)
    vigrel_copy_licence(${real} ${root}/docs/licences)
  endforeach()
  file(WRITE ${root}/qt.conf "[Paths]\nPrefix=.\nLibraries=lib\nPlugins=plugins\nTranslations=translations\n")
endfunction()
