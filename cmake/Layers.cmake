# The folder tells the subject, the file's prefix tells the layer: mdl* and cls* are logic,
# frm*, mdi* and everything in desktop/ are windows. The prefix therefore decides the library,
# and a new file needs no entry here.

set(VK_FOLDERS base conditions link storage monitors viewer maintenance shell)

set(logic_sources)
set(window_sources)
foreach(folder ${VK_FOLDERS})
  file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/mdl*.cpp
       ${CMAKE_SOURCE_DIR}/${folder}/cls*.cpp)
  list(APPEND logic_sources ${found})
  file(GLOB found CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/frm*.cpp
       ${CMAKE_SOURCE_DIR}/${folder}/mdi*.cpp)
  list(APPEND window_sources ${found})
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
  if(EXISTS ${CMAKE_SOURCE_DIR}/desktop/resources.qrc)
    target_sources(vk_windows PRIVATE ${CMAKE_SOURCE_DIR}/desktop/resources.qrc)
  endif()
endif()
