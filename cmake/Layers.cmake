# The folder tells the subject, the file's prefix tells the layer: mdl* and cls* are logic,
# frm*, mdi* and everything in desktop/ are windows. The prefix therefore decides the library,
# and a new file needs no entry here. A source that no rule knows is refused.

set(VK_FOLDERS base recorder link conditions storage monitors viewer maintenance shell)

set(logic_sources)
set(window_sources)
foreach(folder ${VK_FOLDERS})
  file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp)
  foreach(source ${found})
    get_filename_component(name ${source} NAME)
    if(name MATCHES "^(mdl|cls)")
      list(APPEND logic_sources ${source})
    elseif(name MATCHES "^(frm|mdi)")
      list(APPEND window_sources ${source})
    else()
      message(FATAL_ERROR "${folder}/${name}: a source begins with mdl, cls, frm or mdi")
    endif()
  endforeach()
endforeach()
file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/desktop/*.cpp)
list(APPEND window_sources ${found})

find_package(fmt REQUIRED)

# The logic calls the instrument library but does not link one: the program links the shared
# library, a test links a scripted one in its stead.
add_library(vk_logic STATIC ${logic_sources})
target_include_directories(vk_logic PUBLIC ${CMAKE_SOURCE_DIR})
target_link_libraries(vk_logic PUBLIC fmt::fmt)

if(NOT VK_FUZZ)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
  qt_standard_project_setup()
  add_library(vk_windows STATIC ${window_sources})
  target_link_libraries(vk_windows PUBLIC vk_logic Qt6::Widgets)
  # Qt's own keywords are words of this subject, too: slots, signals.
  target_compile_definitions(vk_windows PUBLIC QT_NO_KEYWORDS)
  if(EXISTS ${CMAKE_SOURCE_DIR}/desktop/resources.qrc)
    target_sources(vk_windows PRIVATE ${CMAKE_SOURCE_DIR}/desktop/resources.qrc)
  endif()
endif()
