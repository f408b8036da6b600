# Installation and the .deb. The program finds its library by its run path $ORIGIN/../lib, so both
# keep that distance below a folder of their own.

set(home lib/vk480q-controller)
install(TARGETS vk480q-controller RUNTIME DESTINATION ${home}/bin)
install(TARGETS vk240q_lib LIBRARY DESTINATION ${home}/lib)
install(FILES packaging/vk480q-controller.desktop DESTINATION share/applications)
install(FILES packaging/vk480q-controller.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES LICENSE DESTINATION share/doc/vk480q-controller RENAME copyright)
install(CODE "
  set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
  file(MAKE_DIRECTORY \"\${bin}\")
  file(CREATE_LINK ../${home}/bin/vk480q-controller \"\${bin}/vk480q-controller\" SYMBOLIC)")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vk480q-controller)
set(CPACK_PACKAGE_CONTACT "the VK-480Q CONTROLLER authors <authors@example.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
include(CPack)
