# The pictures, as resources of the programs: ":/icons/strip/26.svg" and the like.
#
# A static library alone would lose them: nothing refers to the registration that rcc makes, so the linker leaves its
# object out unless each program calls Q_INIT_RESOURCE. So the object itself travels along the link: whatever links
# vigrel_resources, directly or through a library, contains the pictures, and needs no call.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Svg)
qt_add_resources(vigrel_resource_source ${CMAKE_CURRENT_SOURCE_DIR}/vigrel.qrc)
add_library(vigrel_resource_object OBJECT ${vigrel_resource_source})
target_link_libraries(vigrel_resource_object PRIVATE Qt6::Core)
add_library(vigrel_resources INTERFACE)
target_link_libraries(vigrel_resources INTERFACE
  $<TARGET_OBJECTS:vigrel_resource_object> Qt6::Core Qt6::Gui Qt6::Svg)

# Desktops look for a program's icon by name in the icon theme.
install(FILES icons/vigrel-receiver.svg icons/vigrel-definitions.svg DESTINATION share/icons/hicolor/scalable/apps)
