# `cpack` in a Release build folder makes the Debian packages.
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${LEAFUND_REVISION})
set(CPACK_PACKAGE_CONTACT ${LEAFUND_CONTACT})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL ${packages})
set(CPACK_DEB_COMPONENT_INSTALL ON)
if(NOT LEAFUND_WEB)
  set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/NeedTools.cmake)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)

# Libraries are read from the program. Beside them it needs the QML modules that its interface
# imports, its typeface, and what it loads by itself: libjpeg, libwebp, giflib, Little CMS, and
# libcurl with the certificates for https.
# Where Wayland is the only display, Qt needs its plugin for it.
set(CPACK_DEBIAN_APP_PACKAGE_NAME leafund)
set(CPACK_DEBIAN_APP_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_APP_PACKAGE_DEPENDS
  "qml6-module-qtquick, qml6-module-qtqml-workerscript, fonts-inter, libcurl4 (>= 7.87), \
libjpeg62-turbo | libjpeg-turbo8, libwebp7, libgif7, liblcms2-2")
set(CPACK_DEBIAN_APP_PACKAGE_RECOMMENDS "qt6-wayland, ca-certificates")
if(demo)
  set(CPACK_DEBIAN_APP_PACKAGE_SUGGESTS leafund-demo)
endif()
set(CPACK_COMPONENT_APP_DESCRIPTION "${appSummary}\n${appDescription}")

# The app of the same build only: the address of the pictures is compiled into it.
set(CPACK_DEBIAN_DEMO_PACKAGE_NAME leafund-demo)
set(CPACK_DEBIAN_DEMO_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DEMO_PACKAGE_DEPENDS "leafund (= ${PROJECT_VERSION}-${LEAFUND_REVISION}), busybox")
set(CPACK_COMPONENT_DEMO_DESCRIPTION "${demoSummary}\n${demoDescription}")

# The page needs nothing of the system but somebody to serve it.
set(CPACK_DEBIAN_WEB_PACKAGE_NAME leafund-web)
set(CPACK_DEBIAN_WEB_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_WEB_PACKAGE_SECTION web)
set(CPACK_DEBIAN_WEB_PACKAGE_SUGGESTS "nginx | httpd")
set(CPACK_COMPONENT_WEB_DESCRIPTION "${webSummary}\n${appDescription}\n${webDescription}")

include(CPack)
