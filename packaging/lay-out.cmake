# Runs between the installation of a package's files and the packing.
include(${CPACK_VIGREL_SOURCE_DIR}/portable/bundle.cmake)

file(GLOB programs ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/bin/*)
if(CPACK_GENERATOR STREQUAL "DEB")
  # Libraries come from the system's packages.
  foreach(program ${programs})
    file(RPATH_REMOVE FILE ${program})
  endforeach()
  return()
endif()

# The portable installation: programs, templates, texts, sounds side by side in one folder. That folder is the
# application folder, since the receiver finds Templates beside itself.
set(root ${CPACK_TEMPORARY_DIRECTORY})
file(GLOB delivered ${root}/share/vigrel-receiver/*)
foreach(source ${programs} ${delivered})
  get_filename_component(name ${source} NAME)
  file(RENAME ${source} ${root}/${name})
endforeach()
file(RENAME ${root}/share/doc/vigrel-receiver ${root}/docs)
file(RENAME ${root}/lib/udev/rules.d/70-vigrel-signal-light.rules ${root}/70-vigrel-signal-light.rules)
file(REMOVE ${root}/docs/changelog.gz ${root}/docs/NEWS.gz)
file(REMOVE_RECURSE ${root}/bin ${root}/share ${root}/lib ${root}/autostart)
file(INSTALL ${CPACK_VIGREL_SOURCE_DIR}/portable/README.txt DESTINATION ${root})
if(CPACK_VIGREL_QMAKE)
  vigrel_bundle(${root} ${CPACK_VIGREL_QMAKE})
endif()
